// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVInterfaceLoader_p.h>

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFocusTokenFieldCell.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderBackgroundView.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderBorderlessPopUpButton.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderFakePopUpCellView.h>
#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVFilterSearchFieldCell.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QAbstractButton>
#include <QFile>
#include <QHash>
#include <QLabel>
#include <QUiLoader>

using namespace Qt::StringLiterals;

/// Of a static library nobody else would ask for them.
static void initializeInterfaces() { Q_INIT_RESOURCE(ZEVGlobalUtils_interfaces); }

namespace {

using Maker = QWidget *(*)(QWidget *parent);

template <typename Widget>
QWidget *made(QWidget *parent)
{
    return new Widget(parent);
}

/// A pattern field without a frame of its own, on the backdrop that it is put into.
QWidget *madeFocusTokenField(QWidget *parent)
{
    auto cell = std::make_unique<ZEVFocusTokenFieldCell>();
    cell->setFakeCellView(qobject_cast<ZEVTextFinderFakeCellView *>(parent));
    auto *field = new ZEVTokenField(std::move(cell), parent);
    field->setBezeled(false);
    return field;
}

const QHash<QString, Maker> &makers()
{
    static const QHash<QString, Maker> all = {
        {u"ZEVTokenField"_s, made<ZEVTokenField>},
        {u"ZEVFocusTokenField"_s, madeFocusTokenField},
        {u"ZEVFilterSearchFieldCell"_s, made<ZEVFilterSearchFieldCell>},
        {u"ZEVTextFinderBackgroundView"_s, made<ZEVTextFinderBackgroundView>},
        {u"ZEVTextFinderFakeCellView"_s, made<ZEVTextFinderFakeCellView>},
        {u"ZEVTextFinderFakePopUpCellView"_s, made<ZEVTextFinderFakePopUpCellView>},
        {u"ZEVTextFinderBorderlessPopUpButton"_s, made<ZEVTextFinderBorderlessPopUpButton>},
    };
    return all;
}

class Loader : public QUiLoader {
public:
    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        const Maker maker = makers().value(className);
        if (!maker)
            return QUiLoader::createWidget(className, parent, name);
        QWidget *widget = maker(parent);
        widget->setObjectName(name);
        return widget;
    }
};

QString localized(const QString &key)
{
    return key.isEmpty() ? key : ZEVGlobalHelper::localizedStringForKey(key);
}

void localize(QWidget *widget)
{
    widget->setToolTip(localized(widget->toolTip()));
    widget->setAccessibleName(localized(widget->accessibleName()));
    if (auto *button = qobject_cast<QAbstractButton *>(widget))
        button->setText(localized(button->text()));
    else if (auto *label = qobject_cast<QLabel *>(widget))
        label->setText(localized(label->text()));
    else if (auto *field = qobject_cast<OEXTokenField *>(widget))
        field->setPlaceholderText(localized(field->placeholderText()));
}

QString fileForName(const QString &name)
{
    initializeInterfaces();
    const QString own = u":/"_s + name + u".ui"_s;
    return QFile::exists(own) ? own : u":/ZEVGlobalUtils/interfaces/"_s + name + u".ui"_s;
}

} // namespace

QWidget *ZEVInterfaceLoader::loadNamed(const QString &name)
{
    QFile file(fileForName(name));
    if (!file.open(QIODevice::ReadOnly))
        return nullptr;
    Loader loader;
    QWidget *view = loader.load(&file);
    if (!view)
        return nullptr;
    localize(view);
    for (QWidget *widget : view->findChildren<QWidget *>())
        localize(widget);
    return view;
}

QWidget *ZEVInterfaceLoader::loadForClass(const QMetaObject *metaObject)
{
    for (; metaObject; metaObject = metaObject->superClass()) {
        if (QWidget *view = loadNamed(QString::fromLatin1(metaObject->className())))
            return view;
    }
    return nullptr;
}

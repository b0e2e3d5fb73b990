// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindBarContainerView.h>
#include <ZEVGlobalUtils/FindPanel/MenuFilter/ZEVFilterSearchFieldCell.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>
#include <ZEVGlobalUtils/ImageViews/ZEVDragImageView.h>
#include <ZEVGlobalUtils/ImageViews/ZEVExportImageView.h>
#include <ZEVGlobalUtils/Menus/Locations/ZEVURLPopUpButton.h>

#include <QIcon>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <functional>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Description {
    QString className;
    QString header; ///< within the library
    QString group;
    QString toolTip;
    QSize size; ///< of a new one, and of the picture that is its icon
    std::function<QWidget *(QWidget *parent)> make;
};

template <typename Widget>
QWidget *made(QWidget *parent)
{
    return new Widget(parent);
}

const std::vector<Description> &descriptions()
{
    static const std::vector<Description> all{
        {u"ZEVTokenField"_s,
         u"FindPanel/PatternFields"_s,
         u"ZEV Fields"_s,
         u"A field in which a pattern of text and tokens is typed"_s,
         {240, 28},
         &made<ZEVTokenField>},
        {u"ZEVFilterSearchFieldCell"_s,
         u"FindPanel/MenuFilter"_s,
         u"ZEV Fields"_s,
         u"A field in which a filter is typed"_s,
         {160, 28},
         &made<ZEVFilterSearchFieldCell>},
        {u"ZEVURLPopUpButton"_s,
         u"Menus/Locations"_s,
         u"ZEV Fields"_s,
         u"Chooses one of the locations that were used last, or another one"_s,
         {200, 32},
         &made<ZEVURLPopUpButton>},
        {u"ZEVDragImageView"_s,
         u"ImageViews"_s,
         u"ZEV Artwork"_s,
         u"Shows artwork, takes other by drop and paste, and gives its own away"_s,
         {160, 160},
         &made<ZEVDragImageView>},
        {u"ZEVExportImageView"_s,
         u"ImageViews"_s,
         u"ZEV Artwork"_s,
         u"Shows a picture to be dragged out"_s,
         {96, 96},
         &made<ZEVExportImageView>},
        {u"ZEVFindBarContainerView"_s,
         u"FindPanel/FindInterfaces"_s,
         u"ZEV Find"_s,
         u"Shows a find bar above its content"_s,
         {320, 200},
         [](QWidget *parent) { return new ZEVFindBarContainerView(new QWidget, parent); }},
    };
    return all;
}

class Plugin : public QDesignerCustomWidgetInterface {
public:
    explicit Plugin(Description description)
        : m_description(std::move(description))
    {
    }

    QString name() const override { return m_description.className; }
    QString group() const override { return m_description.group; }
    QString toolTip() const override { return m_description.toolTip; }
    QString whatsThis() const override { return m_description.toolTip; }
    QString includeFile() const override
    {
        return u"<ZEVGlobalUtils/%1/%2.h>"_s.arg(m_description.header, name());
    }
    bool isContainer() const override { return false; }
    QWidget *createWidget(QWidget *parent) override { return m_description.make(parent); }

    /// What it looks like.
    QIcon icon() const override
    {
        const std::unique_ptr<QWidget> widget(m_description.make(nullptr));
        widget->resize(m_description.size);
        return widget->grab();
    }

    QString domXml() const override
    {
        const QSize size = m_description.size;
        return u"<ui language=\"c++\"><widget class=\"%1\" name=\"%2\"><property name=\"geometry\"><rect>"
               "<x>0</x><y>0</y><width>%3</width><height>%4</height></rect></property></widget></ui>"_s
                   .arg(name(), name().at(3).toLower() + name().sliced(4))
                   .arg(size.width())
                   .arg(size.height());
    }

private:
    Description m_description;
};

} // namespace

class ZEVDesignerWidgets : public QObject, public QDesignerCustomWidgetCollectionInterface {
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")

public:
    QList<QDesignerCustomWidgetInterface *> customWidgets() const override
    {
        static const auto plugins = [] {
            std::vector<std::unique_ptr<Plugin>> made;
            for (const Description &description : descriptions())
                made.push_back(std::make_unique<Plugin>(description));
            return made;
        }();
        QList<QDesignerCustomWidgetInterface *> list;
        for (const auto &plugin : plugins)
            list.append(plugin.get());
        return list;
    }
};

#include "ZEVDesignerWidgets.moc"

// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVPatternTokens.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>

using namespace Qt::StringLiterals;

ZEVPatternItem placeholder(const QString &title)
{
    ZEVPatternItem item = ZEVPatternItem::itemWithTitle(title, title, title, std::nullopt);
    item.setMetadataKeyPath(title.toLower());
    return item;
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QWidget window;
    ZEVPatternTokens tokens(
        {{placeholder(u"Artist"_s), placeholder(u"Title"_s)}, {ZEVPatternItem::digits()}});
    auto *field = new ZEVTokenField;
    field->setDelegate(&tokens);
    field->setLossless(true);
    field->setAutosaveName(u"CookbookPattern"_s); // remembers the last pattern and those that were saved
    auto *insert = new QPushButton(u"&Insert"_s);
    insert->setMenu(new QMenu(insert));
    ZEVPatternTokens::fillMenu(insert->menu(), field, tokens.groups());
    auto *line = new QHBoxLayout(&window);
    line->addWidget(field, 1);
    line->addWidget(insert);
    QObject::connect(field, &ZEVTokenField::patternStringValueChanged, &window,
                     [&] { window.setWindowTitle(field->patternStringValue()); });
    window.resize(480, 80);
    window.show();
    return application.exec();
}

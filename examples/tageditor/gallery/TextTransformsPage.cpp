// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/gallery/TextTransformsPage.h>

#include <tageditor/text/TextTransform.h>

#include <QHeaderView>
#include <QTableWidget>

using namespace Qt::StringLiterals;

QWidget *textTransformsPage(QWidget *parent)
{
    const QStringList texts{u"the_wall of AC/DC (live in ’81)"_s, u"  don't STOP  "_s,
                            u"straße nach süden"_s};
    const QList<TextTransform> &transforms = TextTransform::all();
    auto *table = new QTableWidget(int(transforms.size()), int(texts.size()), parent);
    table->setHorizontalHeaderLabels(texts);
    for (int row = 0; row < table->rowCount(); ++row) {
        table->setVerticalHeaderItem(row, new QTableWidgetItem(transforms[row].plainName()));
        for (int column = 0; column < table->columnCount(); ++column) {
            const QString result = transforms[row].apply(texts[column], {});
            table->setItem(row, column, new QTableWidgetItem(result));
        }
    }
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    return table;
}

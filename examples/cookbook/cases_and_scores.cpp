// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringScorer.h>
#include <ZEVGlobalUtils/Transforms/Texts/ZEVStringTransforms.h>

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QStringList titles;
    for (const QString &title :
         {u"the sound of the harbour"_s, u"a song for the sea"_s, u"south of III rivers"_s})
        titles += ZEVStringTransforms::orvTitleCaseString(title);

    QWidget window;
    auto *typed = new QLineEdit;
    auto *list = new QListWidget;
    auto *rows = new QVBoxLayout(&window);
    rows->addWidget(typed);
    rows->addWidget(list);
    const auto rank = [&] {
        list->clear();
        for (const ZEVStringScorer::Ranked &ranked :
             ZEVStringScorer(typed->text(), std::nullopt).ranking(titles)) {
            if (ranked.score > 0 || typed->text().isEmpty())
                list->addItem(titles.at(ranked.index));
        }
        window.setWindowTitle(list->count() > 0 ? list->item(0)->text() : u"None"_s);
    };
    QObject::connect(typed, &QLineEdit::textChanged, &window, rank);
    rank();
    window.resize(420, 240);
    window.show();
    return application.exec();
}

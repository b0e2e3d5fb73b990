// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"
#include "Shown.h"

#include <tageditor/files/RenameDialog.h>
#include <tageditor/find/FindPanelDialog.h>
#include <tageditor/text/TransformDialog.h>
#include <tageditor/window/Translations.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

/// The keys that more than one of \a texts asks for.
QString sharedMnemonics(const QStringList &texts)
{
    QSet<QKeySequence> keys;
    QString shared;
    for (const QString &text : texts) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty() && keys.contains(key))
            shared += key.toString() + u' ';
        keys.insert(key);
    }
    return shared;
}

QStringList textsOf(const QList<QAction *> &actions)
{
    QStringList texts;
    for (const QAction *action : actions)
        texts.append(action->text());
    return texts;
}

QStringList textsIn(const QWidget &window)
{
    QStringList texts;
    for (const QAbstractButton *button : window.findChildren<QAbstractButton *>())
        texts.append(button->text());
    for (const QLabel *label : window.findChildren<QLabel *>()) {
        if (label->buddy())
            texts.append(label->text());
    }
    return texts;
}

/// What the user would read, and the mnemonics that do not work.
QStringList spoken()
{
    Translations::install();
    MainWindow window;
    window.find().bar().view(); // is made when it is first shown
    QStringList shared{
        sharedMnemonics(textsOf(window.menuBar()->actions()) + textsIn(window)),
        sharedMnemonics(textsIn(RenameDialog({}, {}, nullptr))),
        sharedMnemonics(textsIn(FindPanelDialog(nullptr))),
        sharedMnemonics(textsIn(TransformDialog({}, 0, nullptr))),
    };
    for (const QAction *menu : window.menuBar()->actions())
        shared.append(sharedMnemonics(textsOf(menu->menu()->actions())));
    const TransformDialog dialog({}, 0, nullptr);
    const auto *buttons = dialog.findChild<QDialogButtonBox *>();
    const QString cancel = buttons->button(QDialogButtonBox::Cancel)->text().remove(u'&');
    const QString find = window.menuBar()->actions().at(1)->menu()->actions().value(12)->text();
    const QString count = MainWindow::tr("%Ln tracks", nullptr, 1) + MainWindow::tr("%Ln tracks", nullptr, 0);
    return {window.menuBar()->actions().first()->text(), find, cancel, count, shared.join(QString())};
}

} // namespace

class tst_Languages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// The library takes its language once a process, so every language gets one of its own.
    void theWindowSpeaksTheUsersLanguage()
    {
        const std::tuple<QString, QString> rows[] = {
            {u"de_AT"_s, u"&Datei|&Suchen …|Abbrechen|1 Stück0 Stücke|"_s},
            {u"pl:fr_CA:de"_s, u"&Fichier|Rec&hercher…|Annuler|1\u00a0piste0\u00a0piste|"_s},
            {u"es_MX"_s, u"&Archivo|&Buscar…|Cancelar|1 pista0 pistas|"_s},
            {u"ja"_s, u"ファイル(&F)|検索(&F)…|キャンセル|1 トラック0 トラック|"_s},
            {u"en"_s, u"&File|&Find…|Cancel|1 track0 tracks|"_s},
            {u"pl"_s, u"&File|&Find…|Cancel|1 track0 tracks|"_s}, // though Qt itself speaks it
        };
        const QTemporaryDir home;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_CONFIG_HOME"_s, home.path());
        environment.insert(u"TAGEDITOR_SAY"_s, u"1"_s);
        for (const auto &[languages, texts] : rows) {
            environment.insert(u"LANGUAGE"_s, languages);
            QProcess process;
            process.setProcessEnvironment(environment);
            process.start(QCoreApplication::applicationFilePath());
            QVERIFY(process.waitForFinished());
            COMPARE_ROW(languages, QString::fromUtf8(process.readAllStandardOutput()), texts);
        }
    }
};

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsSet("TAGEDITOR_SAY")) {
        const QApplication application(argc, argv);
        std::fputs(spoken().join(u'|').toUtf8().constData(), stdout);
        return 0;
    }
    const QCoreApplication application(argc, argv);
    tst_Languages test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_Languages.moc"

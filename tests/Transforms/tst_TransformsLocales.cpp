// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "FixedResults.h"

#include <QLocale>
#include <QProcess>
#include <QTest>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr auto PrintArgument = "--print-results";

/// The locale that is in force, and all that must not depend on it.
int printResults()
{
    const QByteArray text = (QLocale().name() + u'\n' + fixedResults().join(u'\n')).toUtf8();
    return std::puts(text.constData()) < 0;
}

/// The results of a process of its own, which takes its locale from LANG.
QStringList resultsUnder(const QString &lang)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"LC_ALL"_s);
    environment.remove(u"LANGUAGE"_s);
    environment.insert(u"LANG"_s, lang);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(PrintArgument)});
    return process.waitForFinished() ? QString::fromUtf8(process.readAllStandardOutput()).split(u'\n')
                                     : QStringList();
}

} // namespace

class tst_TransformsLocales : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void resultsAreThoseOfTheCLocale_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"en_US", "tr_TR", "ar_EG", "ja_JP"})
            QTest::addRow("%s", name) << QString::fromLatin1(name);
    }
    void resultsAreThoseOfTheCLocale()
    {
        QFETCH(QString, name);
        QStringList expected = resultsUnder(u"C"_s);
        QCOMPARE(expected.takeFirst(), u"C"_s);
        QStringList results = resultsUnder(name + u".UTF-8"_s);
        QCOMPARE(results.takeFirst(), name); // else nothing would be shown
        QVERIFY(results.size() > 50);
        QCOMPARE(results, expected);
    }

    void aDefaultThatChangesChangesNothing()
    {
        const QStringList expected = fixedResults();
        for (const char *name : {"en_US", "tr_TR", "ar_EG", "ja_JP", "C"}) {
            QLocale::setDefault(QLocale(QString::fromLatin1(name)));
            QCOMPARE(fixedResults(), expected);
        }
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 2 && qstrcmp(argv[1], PrintArgument) == 0)
        return printResults();
    tst_TransformsLocales test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_TransformsLocales.moc"

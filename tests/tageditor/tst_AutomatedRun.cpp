// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "Samples.h"

#include <tageditor/gallery/GalleryPages.h>

#include <QImage>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Answer {
    int code = -1;
    QString output;
};

Answer run(const QStringList &arguments, const QString &language = {})
{
    const QTemporaryDir home;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_CONFIG_HOME"_s, home.path());
    environment.insert(u"LANGUAGE"_s, language);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(TAGEDITOR_PROGRAM), arguments);
    const bool finished = process.waitForFinished();
    return {finished ? process.exitCode() : -1, QString::fromUtf8(process.readAllStandardOutput())};
}

} // namespace

/// The program as scripts run it.
class tst_AutomatedRun : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theReportNamesEveryMatch()
    {
        const Answer answer = run({u"--find"_s, u"%(\\d+)% AOÛT|Première"_s, u"--matching-type"_s, u"4"_s,
                                   u"--report"_s, u"--quit"_s, Samples::folder() + u"/Maree"_s});
        QCOMPARE(answer.output,
                 u"05 Fenetre.flac\tComment\t{0, 8}\tPremière\n"
                 "05 Fenetre.flac\tComment\t{16, 7}\t12 août\n"
                 "2 matches\n"_s);
        QCOMPARE(answer.code, 0);
    }

    void theSampleIsTheDefault()
    {
        const Answer answer = run({u"--find"_s, u"ÉTÉ"_s, u"--case-sensitive"_s, u"--report"_s, u"--quit"_s});
        QCOMPARE(answer.output, u"0 matches\n"_s);
        QCOMPARE(run({u"--find"_s, u"ÉTÉ"_s, u"--report"_s, u"--quit"_s}).output,
                 u"Maree/04 Ete.mp3\tTitle\t{0, 3}\tÉté\n1 match\n"_s);
    }

    void theUsersLanguageIsSpoken()
    {
        const std::tuple<QString, QString> rows[] = {
            {u"de"_s, u"Zeigt die Tags der Audiodateien"_s},
            {u"fr"_s, u"Affiche les étiquettes des fichiers audio"_s},
            {u"en"_s, u"Shows the tags of the audio files"_s},
        };
        for (const auto &[language, description] : rows) {
            const QString help = run({u"--help"_s}, language).output;
            QVERIFY2(help.contains(description), qPrintable(help));
        }
    }

    void theScreenshotShowsTheRows()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(u"shot.png"_s);
        QCOMPARE(run({u"--dark"_s, u"--find"_s, u"."_s, u"--screenshot"_s, file, u"--quit"_s}).code, 0);
        const QImage image(file);
        QVERIFY(image.width() > 300);
        QVERIFY(image.height() > 200);
        int marked = 0; // matches are the only yellow in the window
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor color = image.pixelColor(x, y);
                marked += color.saturation() > 150 && color.hue() > 40 && color.hue() < 60 ? 1 : 0;
            }
        }
        QVERIFY2(marked > 1000, qPrintable(QString::number(marked)));
    }

    void theGalleryPicturesEveryPage()
    {
        const QTemporaryDir folder;
        const QString made = folder.filePath(u"a/b"_s);
        QCOMPARE(run({u"--gallery"_s, u"--inactive"_s, u"--screenshot"_s, made, u"--quit"_s}).code, 0);
        const QStringList files = QDir(made).entryList(QDir::Files);
        QCOMPARE(files.size(), galleryPages().size());
        for (const QString &file : files)
            QVERIFY2(QImage(made + u'/' + file).width() > 900, qPrintable(file));
    }

    void failuresShowInTheCode()
    {
        QCOMPARE(run({u"--quit"_s, u"--gallery"_s, u"--screenshot"_s, u"/dev/null/pages"_s}).code, 1);
        QCOMPARE(run({u"--quit"_s, u"/no/such/folder"_s}).code, 1);
        QCOMPARE(run({u"--quit"_s, u"--screenshot"_s, u"/no/such/folder/a.png"_s}).code, 1);
        QCOMPARE(run({u"--quit"_s, u"--matching-type"_s, u"6"_s}).code, 2);
    }
};

QTEST_GUILESS_MAIN(tst_AutomatedRun)
#include "tst_AutomatedRun.moc"

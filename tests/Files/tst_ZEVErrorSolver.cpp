// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"
#include "../Trees.h"

#include <ZEVGlobalUtils/Files/ZEVDataBookmarkAdditions.h>
#include <ZEVGlobalUtils/Files/ZEVOpenPanelSandbox.h>
#include <ZEVGlobalUtils/Files/ZEVProgress.h>
#include <ZEVGlobalUtils/Files/ZEVResponderErrorHandler.h>
#include <ZEVGlobalUtils/Files/ZEVURLBookmarkAdditions.h>
#include <ZEVGlobalUtils/Files/ZEVURLFileAccess.h>
#include <ZEVGlobalUtils/Platform/FileSystem/ZEVFileReference.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVAlert.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVOpenPanel.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>

#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

/// Answers every alert with one button.
struct Answers {
    explicit Answers(int button, bool toAll = false)
    {
        ZEVAlert::setRunner([=, this](ZEVAlert &alert) {
            shown.append(alert);
            alert.isSuppressed = toAll;
            return 1000 + button;
        });
    }
    ~Answers() { ZEVAlert::setRunner({}); }

    QList<ZEVAlert> shown;
};

} // namespace

class tst_ZEVErrorSolver : public QObject {
    Q_OBJECT

private:
    int m_retries = 0;

    ZEVErrorSolver::Pointer solver(const QVariantMap &userInfo = {})
    {
        auto solver = ZEVErrorSolver::solverWithError(ZEVError(u"d", 7, userInfo));
        solver->addRecoveryOptionWithLocalizedTitle(u"Retry"_s, [this] { return ++m_retries > 0; });
        solver->addCancelRecoveryOption();
        return solver;
    }

private Q_SLOTS:
    void init() { m_retries = 0; }

    void theErrorCarriesItsSolver()
    {
        const ZEVError plain(u"d", 7, {{u"k"_s, 1}});
        ZEVError error = solver(plain.userInfo())->error();
        QCOMPARE(error.underlyingError(), plain);
        QCOMPARE(error.userInfo().value(u"k"_s), 1);
        const auto attempter = ZEVErrorRecoveryAttempting::attempterOfError(error);
        error = {};
        QVERIFY(attempter->attemptRecoveryFromError(error, 0));
        QVERIFY(m_retries == 1);
        QVERIFY(!attempter->attemptRecoveryFromError(error, 1));
        QVERIFY(!attempter->attemptRecoveryFromError(error, 2));
    }

    void everyPresentationRunsTheChosenOption()
    {
        QWidget window;
        for (const int button : {0, 1}) {
            const Answers answers(button);
            QCOMPARE(ZEVResponderErrorHandler::presentErrorSolver(nullptr, solver()), button == 0);
            QCOMPARE(ZEVResponderErrorHandler::presentErrorSolver(nullptr, solver(), nullptr, false),
                     button == 0);
            QList<bool> outcomes;
            const auto sheet = solver();
            sheet->setCompletionHandler([&](bool didRecover) { outcomes.append(didRecover); });
            sheet->didPresentErrorWithRecovery(true, this); // of another context
            ZEVResponderErrorHandler::presentErrorSolver(&window, sheet, &window);
            QCOMPARE(outcomes, QList{button == 0}); // once
            QCOMPARE(answers.shown.size(), 3);
            for (const ZEVAlert &alert : answers.shown)
                QCOMPARE(alert.buttons, (QStringList{u"Retry"_s, u"Cancel"_s}));
        }
        QCOMPARE(m_retries, 3);
    }

    void anAnswerToAllIsAskedOnce()
    {
        using ZEVResponderErrorHandler::presentErrorSolver;
        const auto item = solver({{u"NSURL"_s, QUrl(u"file:///usr"_s)}});
        {
            const Answers once(1);
            QVERIFY(!presentErrorSolver(nullptr, item, nullptr, true));
            QCOMPARE(once.shown.first().windowTitle, QString()); // not the application's name
        }
        const ZEVProgress progress(u"Copying"_s);
        std::optional<qint64> all;
        {
            const Answers once(1);
            QVERIFY(!presentErrorSolver(nullptr, item, &all, true));
            QVERIFY(!all);
        }
        const Answers answers(1, true);
        QVERIFY(!presentErrorSolver(nullptr, item, &all, true));
        QVERIFY(!presentErrorSolver(nullptr, item, &all, true));
        QCOMPARE(all, 1);
        all = 0; // is an answer as well
        QVERIFY(presentErrorSolver(nullptr, item, &all, true));
        QCOMPARE(answers.shown.size(), 1);
        const ZEVAlert &alert = answers.shown.first();
        QCOMPARE(alert.windowTitle, u"Copying"_s);
        QCOMPARE(alert.suppressionTitle, u"Apply to All"_s);
        QVERIFY(alert.showsSuppressionButton);
        QVERIFY(!alert.icon.isNull());
    }

    void bookmarksFollowRenamedItems()
    {
        const QTemporaryDir folder;
        const QByteArray root = folder.path().toUtf8() + '/';
        const auto url = [&](const QByteArray &name) { return ZEVFileURL::withPath(root + name); };
        QVERIFY(Trees::write(root + "a\xFF.flac", {}));
        const QByteArray bookmark = ZEVURLBookmarkAdditions::bookmarkWithError(url("a\xFF.flac"));
        const QUrl reference = ZEVFileReference::fileReferenceURL(url("a\xFF.flac"));
        QCOMPARE(ZEVFileURL::path(reference), root + "a\xFF.flac");
        std::filesystem::rename((root + "a\xFF.flac").toStdString(), (root + "b").toStdString());
        QCOMPARE(ZEVDataBookmarkAdditions::bookmarkedURL(bookmark), url("b"));
        QCOMPARE(ZEVFileReference::filePathURL(reference), url("b"));
        QVERIFY(Trees::write(root + "a\xFF.flac", {})); // another item of that name
        QCOMPARE(ZEVDataBookmarkAdditions::bookmarkedURL(bookmark), url("b"));
        QVERIFY(QFile::remove(folder.filePath(u"b"_s)));
        QCOMPARE(ZEVDataBookmarkAdditions::bookmarkedURL(bookmark),
                 url("a\xFF.flac")); // as when it was saved anew
        std::filesystem::remove((root + "a\xFF.flac").toStdString());
        ZEVError error;
        QVERIFY(!ZEVURLBookmarkAdditions::URLWithBookmark(bookmark, &error).isValid());
        QVERIFY(error.code() == 4);
        QVERIFY(ZEVURLBookmarkAdditions::bookmarkWithError(url("none"), &error).isNull());
        QVERIFY(error.code() == 4);
        const auto values = ZEVURLBookmarkAdditions::resourceValuesForBookmark(bookmark);
        QCOMPARE(values->localizedName, u"a\uFFFD.flac"_s);
        QCOMPARE(values->effectiveIconName, u"audio-flac"_s);
        for (qsizetype n = 0; n < bookmark.size(); ++n) // damaged
            QVERIFY(!ZEVDataBookmarkAdditions::bookmarkedURL(bookmark.first(n)).isValid());
    }

    void whatIsGrantedIsKeptOnce()
    {
        const QTemporaryDir folder;
        ZEVUserDefaults::setStandardStore(
            std::make_unique<QSettings>(folder.filePath(u"defaults.ini"_s), QSettings::IniFormat));
        const auto stored = [] {
            return ZEVUserDefaults::standardUserDefaults()->objectForKey(u"bookmarkedLocations"_s).toList();
        };
        int response = 0;
        ZEVOpenPanel shown;
        ZEVOpenPanel::setRunner([&](ZEVOpenPanel &panel) {
            shown = panel;
            panel.URL = Trees::url(folder.path());
            return response;
        });
        const QUrl place(u"file:///home/none/of/these"_s);
        QVERIFY(!ZEVURLFileAccess::runModalSandboxPanel(place));
        QVERIFY(stored().isEmpty());
        QVERIFY(!ZEVURLFileAccess::requestSandboxExtention(place)); // nobody is asked outside of a sandbox
        response = 1;
        for (int n = 0; n < 2; ++n) {
            QVERIFY(ZEVURLFileAccess::runModalSandboxPanel(place));
            QVERIFY(stored().size() == 1);
        }
        ZEVOpenPanel::setRunner({});
        QCOMPARE(ZEVDataBookmarkAdditions::bookmarkedURL(stored().first().toByteArray()),
                 Trees::url(folder.path()));
        QCOMPARE(shown.directoryURL, QUrl(u"file:///home"_s));
        QCOMPARE(shown.title, shown.prompt);
    }

    void theSuggestionIsForTheHomeFolderOnly()
    {
        qputenv("HOME", "/home/ann");
        const auto lines = [](const QString &path) {
            return ZEVOpenPanelSandbox::sandboxAccessPanelForURL(Trees::url(path)).message.count(u'\n') + 1;
        };
        QCOMPARE(lines(u"/home/ann/Music"_s), 2);
        QCOMPARE(lines(u"/home/annabel/Music"_s), 1);
        QCOMPARE(lines(u"/Volumes/Disk"_s), 1);
    }
};

QTEST_MAIN(tst_ZEVErrorSolver)
#include "tst_ZEVErrorSolver.moc"

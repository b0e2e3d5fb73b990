// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/ZEVError.h>
#include <ZEVGlobalUtils/Platform/ZEVErrorPresentation.h>

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

class tst_ZEVErrorPresentation : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theAlertShowsPlainText()
    {
        const ZEVError error(u"d", 1, {{ZEVError::LocalizedDescriptionKey.toString(), u"<b>(a</b> & co"_s}});
        QString shown;
        Qt::TextFormat format = Qt::AutoText;
        QTimer::singleShot(0, this, [&] {
            const auto *alert = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(alert);
            shown = alert->text();
            format = alert->textFormat();
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
        });
        ZEVErrorPresentation::presentError(error);
        QCOMPARE(shown, u"<b>(a</b> & co");
        QCOMPARE(format, Qt::PlainText);
    }

    void aHostTakesThePresentationOver()
    {
        QList<qint64> codes;
        const auto present = [&](const ZEVError &error) { codes.append(error.code()); };
        QVERIFY(!ZEVErrorPresentation::setPresenter(present));
        ZEVErrorPresentation::presentError(ZEVError(u"d", 7));
        QVERIFY(ZEVErrorPresentation::setPresenter({}));
        QCOMPARE(codes, QList<qint64>{7});
    }

    void anErrorWithoutATextNamesDomainAndCode()
    {
        const ZEVError below(ZEVError::POSIXErrorDomain, 18);
        const ZEVError error(ZEVError::CocoaErrorDomain, 512,
                             {{ZEVError::UnderlyingErrorKey.toString(), QVariant::fromValue(below)}});
        QCOMPARE(error.localizedDescription(),
                 u"The operation couldn’t be completed. (NSCocoaErrorDomain error 512.)");
        QCOMPARE(error.underlyingError(), below);
        QVERIFY(!below.underlyingError());
    }
};

QTEST_MAIN(tst_ZEVErrorPresentation)
#include "tst_ZEVErrorPresentation.moc"

// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Questions/ZEVErrorPresentation.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

class tst_ZEVErrorPresentation : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theAlertShowsPlainText()
    {
        bool seen = false;
        QTimer::singleShot(0, this, [&] {
            QWidget *const alert = QApplication::activeModalWidget();
            for (const QLabel *label : alert->findChildren<QLabel *>())
                seen |= label->text() == u"<b>(a</b> & co" && label->textFormat() == Qt::PlainText;
            QTest::keyClick(alert, Qt::Key_Escape);
        });
        ZEVErrorPresentation::presentError(
            ZEVError(u"d", 1, {{ZEVError::LocalizedDescriptionKey.toString(), u"<b>(a</b> & co"_s}}));
        QVERIFY(seen);
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

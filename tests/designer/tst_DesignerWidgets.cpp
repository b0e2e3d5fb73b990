// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>

#include <QBuffer>
#include <QPluginLoader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QUiLoader>

using namespace Qt::StringLiterals;

class tst_DesignerWidgets : public QObject {
    Q_OBJECT

private:
    QPluginLoader m_plugin{QStringLiteral(ZEV_DESIGNER_PLUGIN)};

private Q_SLOTS:
    void everyWidgetIsMadeAndLoaded()
    {
        const auto *collection =
            qobject_cast<QDesignerCustomWidgetCollectionInterface *>(m_plugin.instance());
        QVERIFY2(collection, qPrintable(m_plugin.errorString()));
        const auto widgets = collection->customWidgets();
        QCOMPARE(widgets.size(), 6);
        QUiLoader loader;
        loader.addPluginPath(QFileInfo(m_plugin.fileName()).path());
        for (QDesignerCustomWidgetInterface *widget : widgets) {
            const QByteArray name = widget->name().toLatin1();
            QVERIFY2(loader.availableWidgets().contains(widget->name()), name);
            const QString header = widget->includeFile().remove(u'<').remove(u'>');
            QVERIFY2(QFile::exists(QStringLiteral(ZEV_SOURCE_DIR "/") + header), name);
            QVERIFY2(!widget->icon().pixmap(32, 32).isNull(), name);
            QByteArray xml = widget->domXml().toUtf8().replace("language=\"c++\"", "version=\"4.0\"");
            QBuffer file(&xml);
            const std::unique_ptr<QWidget> loaded(loader.load(&file));
            QVERIFY2(loaded, qPrintable(loader.errorString()));
            QCOMPARE(loaded->metaObject()->className(), name.constData());
            QVERIFY2(loaded->width() >= 90, name);
        }
    }

    void propertiesComeFromTheFile()
    {
        QByteArray xml = "<ui version=\"4.0\"><widget class=\"ZEVTokenField\" name=\"f\"><property "
                         "name=\"lossless\"><bool>true</bool></property></widget></ui>";
        QBuffer file(&xml);
        QUiLoader loader;
        loader.addPluginPath(QFileInfo(m_plugin.fileName()).path());
        const std::unique_ptr<QWidget> field(loader.load(&file));
        QVERIFY(qobject_cast<ZEVTokenField *>(field.get()));
        QVERIFY(qobject_cast<ZEVTokenField *>(field.get())->isLossless());
    }
};

QTEST_MAIN(tst_DesignerWidgets)
#include "tst_DesignerWidgets.moc"

// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Observing/ZEVKeyValueObserver.h>
#include <ZEVGlobalUtils/Menus/Observing/ZEVObjectUserDefaultsBindings.h>

#include <QApplication>
#include <QSpinBox>

using namespace Qt::StringLiterals;

class Volume : public QSpinBox {
    Q_OBJECT

public Q_SLOTS:
    void volumeDidChange(const QVariantMap &change)
    {
        setWindowTitle(u"From %1 to %2"_s.arg(change[u"old"_s].toInt()).arg(change[u"new"_s].toInt()));
    }
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Volume volume;
    ZEVObjectUserDefaultsBindings::bind(&volume, u"value"_s, u"CookbookVolume"_s, {.nullPlaceholder = 50});
    const auto observer = ZEVKeyValueObserver::observeObject(
        &volume, u"value"_s, &volume, "volumeDidChange",
        ZEVKeyValueObserver::Old | ZEVKeyValueObserver::New | ZEVKeyValueObserver::Initial);
    volume.resize(240, 40);
    volume.show();
    return application.exec();
}

#include "observing.moc"

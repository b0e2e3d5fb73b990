// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/gallery/GalleryWindow.h>

#include <QCoreApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QListWidget>
#include <QScrollArea>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace {

QWidget *scrollable(QWidget *page)
{
    auto *area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setWidget(page);
    return area;
}

} // namespace

GalleryWindow::GalleryWindow(const QList<GalleryPage> &pages)
    : m_names(new QListWidget)
    , m_pages(new QStackedWidget)
{
    setWindowTitle(tr("Gallery"));
    resize(960, 640);
    m_names->setAccessibleName(tr("Pages"));
    for (const GalleryPage &page : pages) {
        m_names->addItem(page.name);
        m_pages->addWidget(scrollable(page.make(nullptr)));
    }
    m_names->setMaximumWidth(160);
    connect(m_names, &QListWidget::currentRowChanged, m_pages, &QStackedWidget::setCurrentIndex);
    m_names->setCurrentRow(0);
    auto *columns = new QHBoxLayout(this);
    columns->addWidget(m_names);
    columns->addWidget(m_pages, 1);
}

bool GalleryWindow::saveScreenshots(const QString &folder)
{
    bool areSaved = QDir().mkpath(folder);
    for (int row = 0; row < m_names->count(); ++row) {
        m_names->setCurrentRow(row);
        // Pages may put off some of their layout until the event loop comes round.
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
        const QString name = m_names->item(row)->text().toLower().replace(u' ', u'-');
        areSaved &= grab().save(QDir(folder).filePath(name + u".png"_s), "PNG");
    }
    return areSaved;
}

// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Menus/Locations/ZEVApplicationChooser_p.h>

#include <ZEVGlobalUtils/Platform/Desktop/ZEVApplications_p.h>
#include <ZEVGlobalUtils/Platform/Questions/ZEVOpenPanel.h>
#include <ZEVGlobalUtils/Platform/Text/ZEVLocalizedStandardCompare_p.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int UrlRole = Qt::UserRole;
constexpr int WidthInCharacters = 48;

QString localized(const QString &key) { return ZEVGlobalHelper::localizedStringForKey(key); }

/// Where executables are: the folder of applications, or of programs on desktops that have none.
QUrl folderOfApplications()
{
    const QString applications = u"/Applications"_s;
    return QUrl::fromLocalFile(QFileInfo::exists(applications) ? applications : u"/usr/bin"_s);
}

QUrl chooseExecutable()
{
    ZEVOpenPanel panel;
    panel.title = localized(u"Choose an Application"_s);
    panel.prompt = localized(u"Choose"_s);
    panel.directoryURL = folderOfApplications();
    panel.canChooseFiles = true;
    panel.onlyExecutables = true;
    return panel.runModal() == ZEVOpenPanel::OKResponse ? panel.URL : QUrl();
}

class Chooser : public QDialog {
public:
    explicit Chooser(QWidget *parent);

    QUrl chosen() const { return m_chosen; }

    bool eventFilter(QObject *watched, QEvent *event) override;
    void accept() override;

private:
    void addApplications();
    void makeButtons();
    void narrow(const QString &typed);
    void chooseOther();

    QLineEdit *m_filter;
    QListWidget *m_list;
    QDialogButtonBox *m_buttons;
    QUrl m_chosen;
};

Chooser::Chooser(QWidget *parent)
    : QDialog(parent)
    , m_filter(new QLineEdit)
    , m_list(new QListWidget)
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel))
{
    setWindowTitle(localized(u"Choose an Application"_s));
    m_filter->setPlaceholderText(localized(u"Filter"_s));
    m_filter->setAccessibleName(localized(u"Filter"_s));
    m_filter->setClearButtonEnabled(true);
    m_filter->installEventFilter(this);
    m_list->setAccessibleName(localized(u"Applications"_s));
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(m_filter);
    rows->addWidget(m_list);
    rows->addWidget(m_buttons);
    makeButtons();
    addApplications();
    connect(m_filter, &QLineEdit::textChanged, this, &Chooser::narrow);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &Chooser::accept);
    narrow({});
    resize(fontMetrics().averageCharWidth() * WidthInCharacters,
           fontMetrics().height() * WidthInCharacters / 2);
}

void Chooser::makeButtons()
{
    m_buttons->button(QDialogButtonBox::Open)->setText(localized(u"Open"_s));
    m_buttons->button(QDialogButtonBox::Cancel)->setText(localized(u"Cancel"_s));
    auto *other = m_buttons->addButton(localized(u"Other…"_s), QDialogButtonBox::ActionRole);
    connect(other, &QPushButton::clicked, this, &Chooser::chooseOther);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &Chooser::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &Chooser::reject);
}

void Chooser::addApplications()
{
    QList<std::pair<QString, QUrl>> applications;
    for (const QUrl &url : ZEVApplications::applicationURLs()) {
        if (url != ZEVApplications::mainApplicationURL())
            applications.append({ZEVApplications::displayName(url), url});
    }
    std::ranges::stable_sort(applications, [](const auto &one, const auto &other) {
        return ZEVLocalizedStandardCompare(one.first, other.first) < 0;
    });
    for (const auto &[name, url] : applications) {
        auto *item = new QListWidgetItem(ZEVApplications::icon(url), name, m_list);
        item->setData(UrlRole, url);
    }
}

/// The first one that is left is the current one, for Return.
void Chooser::narrow(const QString &typed)
{
    QListWidgetItem *first = nullptr;
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem *item = m_list->item(row);
        item->setHidden(!item->text().contains(typed, Qt::CaseInsensitive));
        if (!first && !item->isHidden())
            first = item;
    }
    m_list->setCurrentItem(first);
    m_buttons->button(QDialogButtonBox::Open)->setEnabled(first);
}

void Chooser::accept()
{
    if (const QListWidgetItem *item = m_list->currentItem()) {
        m_chosen = item->data(UrlRole).toUrl();
        QDialog::accept();
    }
}

void Chooser::chooseOther()
{
    const QPointer guard(this);
    const QUrl chosen = chooseExecutable();
    if (!guard || !chosen.isValid())
        return;
    m_chosen = chosen;
    QDialog::accept();
}

bool Chooser::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent *>(event)->key();
    const bool walks =
        key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
    return walks && QApplication::sendEvent(m_list, event);
}

} // namespace

QUrl ZEVApplicationChooser::chooseApplication()
{
    // Its parent may go while it is open, and takes it along.
    const QPointer chooser(new Chooser(QApplication::activeWindow()));
    const bool isAccepted = chooser->exec() == QDialog::Accepted;
    const QUrl chosen = chooser && isAccepted ? chooser->chosen() : QUrl();
    delete chooser;
    return chosen;
}

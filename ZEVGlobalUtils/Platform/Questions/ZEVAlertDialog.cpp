// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Platform/Questions/ZEVAlertDialog_p.h>

#include <ZEVGlobalUtils/Platform/Questions/ZEVAlert.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>

#include <QCheckBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// How wide texts become before they are broken, in average characters.
constexpr int CharactersInLine = 64;

QString withoutMnemonics(QString text) { return text.replace(u'&', QStringLiteral("&&")); }

/// A place to break names that have none: a label never breaks within a word.
QString breakable(const QString &text)
{
    QString broken;
    int run = 0;
    for (const QChar character : text) {
        run = character.isSpace() ? 0 : run + 1;
        if (run > CharactersInLine / 2 && !character.isLowSurrogate() && !character.isMark()) {
            broken += QChar(0x200B); // a space without width
            run = 0;
        }
        broken += character;
    }
    return broken;
}

} // namespace

ZEVAlertDialog::ZEVAlertDialog(const ZEVAlert &alert, QWidget *parent)
    : QDialog(parent)
    , m_escapeButton(alert.escapeButton)
{
    setWindowTitle(alert.windowTitle.value_or(QGuiApplication::applicationDisplayName()));
    auto *rows = new QVBoxLayout(this);
    auto *columns = new QHBoxLayout;
    auto *column = new QVBoxLayout;
    columns->addWidget(addIcon(alert), 0, Qt::AlignTop);
    columns->addLayout(column, 1);
    rows->addLayout(columns, 1);
    rows->addSpacing(style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing));
    addTexts(column, alert);
    addItems(column, alert);
    addSuppression(column, alert);
    column->addStretch();
    rows->addLayout(makeButtons(alert));
    rows->setSizeConstraint(QLayout::SetFixedSize);
    findChild<QPushButton *>()->setFocus(); // only now is it in the window; the first is the default
}

QLabel *ZEVAlertDialog::addIcon(const ZEVAlert &alert)
{
    const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    const QIcon icon = alert.icon.isNull() ? style()->standardIcon(QStyle::SP_MessageBoxWarning) : alert.icon;
    auto *label = new QLabel;
    label->setPixmap(icon.pixmap(QSize(size, size), devicePixelRatioF()));
    return label;
}

QLabel *ZEVAlertDialog::addText(QVBoxLayout *column, const QString &text)
{
    auto *label = new QLabel(breakable(text));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(fontMetrics().averageCharWidth() * CharactersInLine);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    column->addWidget(label);
    return label;
}

void ZEVAlertDialog::addTexts(QVBoxLayout *column, const ZEVAlert &alert)
{
    QLabel *message = addText(column, alert.messageText);
    QFont bold = font();
    bold.setBold(true);
    message->setFont(bold);
    if (!alert.informativeText.isEmpty())
        addText(column, alert.informativeText);
    setAccessibleDescription(alert.messageText + u'\n' + alert.informativeText);
}

void ZEVAlertDialog::addItems(QVBoxLayout *column, const ZEVAlert &alert)
{
    auto *grid = new QGridLayout;
    for (const ZEVAlert::Item &item : alert.items) {
        const int row = grid->rowCount();
        auto *picture = new QLabel;
        picture->setPixmap(item.picture);
        picture->setAlignment(Qt::AlignCenter);
        auto *text = new QLabel(breakable(item.text));
        text->setTextFormat(Qt::PlainText);
        text->setWordWrap(true);
        grid->addWidget(picture, row, 0, Qt::AlignTop);
        grid->addWidget(text, row, 1, Qt::AlignTop);
    }
    grid->setColumnStretch(1, 1);
    column->addLayout(grid);
}

void ZEVAlertDialog::addSuppression(QVBoxLayout *column, const ZEVAlert &alert)
{
    if (!alert.showsSuppressionButton)
        return;
    m_suppression = new QCheckBox(withoutMnemonics(alert.suppressionTitle));
    m_suppression->setChecked(alert.isSuppressed);
    column->addWidget(m_suppression);
}

QLayout *ZEVAlertDialog::makeButtons(const ZEVAlert &alert)
{
    const QStringList titles =
        alert.buttons.isEmpty() ? QStringList{ZEVGlobalHelper::localizedStringForKey(u"OK")} : alert.buttons;
    auto *row = new QHBoxLayout;
    row->addStretch();
    for (int n = 0; n < titles.size(); ++n) {
        auto *button = new QPushButton(withoutMnemonics(titles.at(n)));
        button->setDefault(n == 0);
        if (n == alert.destructiveButton)
            button->setIcon(style()->standardIcon(QStyle::SP_MessageBoxWarning));
        connect(button, &QPushButton::clicked, this, [this, n] { done(n); });
        row->addWidget(button);
    }
    m_lastButton = int(titles.size()) - 1;
    return row;
}

bool ZEVAlertDialog::isSuppressed() const { return m_suppression && m_suppression->isChecked(); }

/// Not the same as closing the window, which QDialog takes it for.
void ZEVAlertDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel) && m_escapeButton >= 0)
        done(m_escapeButton);
    else
        QDialog::keyPressEvent(event);
}

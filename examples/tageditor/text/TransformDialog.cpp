// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/text/TransformDialog.h>

#include <tageditor/text/PreviewTable.h>

#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

const QString LanguageKey = u"TextTransformLanguage"_s;
const QString UntouchedKey = u"TextTransformUntouchedSpellings"_s;

QStringList spellings(const QString &line)
{
    QStringList spellings;
    for (const QString &part : line.split(u',')) {
        if (const QString spelling = part.trimmed(); !spelling.isEmpty())
            spellings.append(spelling);
    }
    return spellings;
}

} // namespace

TransformDialog::TransformDialog(QList<TextChange> cells, int transform, QWidget *parent)
    : QDialog(parent)
    , m_model(std::move(cells))
    , m_transform(new QComboBox)
    , m_language(new QComboBox)
    , m_untouched(new QLineEdit)
    , m_count(new QLabel)
{
    setWindowTitle(tr("Transform Text"));
    fillChoices(transform);
    layOut();
    restoreRules();
    connect(&m_model, &TransformPreviewModel::progressed, this, &TransformDialog::showCount);
    connect(m_transform, &QComboBox::currentIndexChanged, this, &TransformDialog::updatePreview);
    connect(m_language, &QComboBox::currentIndexChanged, this, &TransformDialog::updatePreview);
    connect(m_untouched, &QLineEdit::textChanged, this, &TransformDialog::updatePreview);
    updatePreview();
}

void TransformDialog::fillChoices(int transform)
{
    for (const TextTransform &choice : TextTransform::all())
        m_transform->addItem(choice.plainName());
    m_transform->setCurrentIndex(transform);
    m_language->addItem(tr("User’s Default"), QString());
    m_language->addItem(tr("English"), u"en"_s);
    m_language->addItem(tr("Turkish"), u"tr"_s);
    m_language->addItem(tr("Dutch"), u"nl"_s);
    m_language->addItem(tr("German"), u"de"_s);
    m_language->setToolTip(tr("Whose small and capital letters to use"));
    m_untouched->setPlaceholderText(tr("deadmau5, k.d. lang"));
    m_untouched->setToolTip(tr("Spellings that stay as they are, with commas between them"));
}

void TransformDialog::layOut()
{
    auto *choices = new QFormLayout;
    choices->addRow(tr("&Transform:"), m_transform);
    choices->addRow(tr("&Language:"), m_language);
    choices->addRow(tr("&Never touch:"), m_untouched);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Apply | QDialogButtonBox::Cancel);
    QPushButton *apply = buttons->button(QDialogButtonBox::Apply);
    connect(apply, &QPushButton::clicked, this, &TransformDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &TransformDialog::reject);

    auto *rows = new QVBoxLayout(this);
    rows->addLayout(choices);
    rows->addWidget(makePreviewTable(&m_model), 1);
    rows->addWidget(m_count);
    rows->addWidget(buttons);
    apply->setDefault(true); // only now, since the dialog takes no note of it before the button is in it
    resize(fontMetrics().averageCharWidth() * 100, fontMetrics().height() * 28);
}

void TransformDialog::restoreRules()
{
    const ZEVUserDefaults *defaults = ZEVUserDefaults::standardUserDefaults();
    const int language = m_language->findData(defaults->objectForKey(LanguageKey).toString());
    m_language->setCurrentIndex(std::max(language, 0));
    m_untouched->setText(defaults->objectForKey(UntouchedKey).toString());
}

void TransformDialog::rememberRules() const
{
    ZEVUserDefaults *defaults = ZEVUserDefaults::standardUserDefaults();
    defaults->setObject(m_language->currentData(), LanguageKey);
    defaults->setObject(m_untouched->text(), UntouchedKey);
}

const TextTransform &TransformDialog::transform() const
{
    return TextTransform::all().at(m_transform->currentIndex());
}

ZEVCaseRules TransformDialog::rules() const
{
    ZEVCaseRules::Lists lists;
    lists.untouchedSpellings = spellings(m_untouched->text());
    if (const QString language = m_language->currentData().toString(); !language.isEmpty())
        lists.locale = QLocale(language);
    return ZEVCaseRules(lists);
}

void TransformDialog::updatePreview()
{
    m_language->setEnabled(transform().goesByRules);
    m_untouched->setEnabled(transform().goesByRules);
    m_model.setTransform(transform(), rules());
}

void TransformDialog::showCount()
{
    QString text =
        tr("%L1 of %Ln texts will change", nullptr, int(m_model.numberOfCells())).arg(m_model.rowCount());
    if (m_model.numberOfCells() == 1)
        text = m_model.rowCount() == 0 ? tr("The text will not change") : tr("The text will change");
    else if (m_model.rowCount() == 0)
        text = tr("None of %Ln texts will change", nullptr, int(m_model.numberOfCells()));
    m_count->setText(m_model.isFinished() ? text : text + u'…');
}

void TransformDialog::accept()
{
    m_model.finish();
    rememberRules();
    QDialog::accept();
}

// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/Transforms/Formatters/ZEVNumericEnforcer.h>

#include <ZEVGlobalUtils/Platform/Text/ZEVCharacterSet.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVGlobalHelper.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVVariantValues_p.h>

#include <QApplication>
#include <QLocale>
#include <QThread>

#include <algorithm>

namespace {

bool hasOnlyDigits(const QString &string)
{
    const auto characters = string.toUcs4();
    return std::ranges::all_of(
        characters, [](char32_t character) { return ZEVCharacterSet::decimalDigits().contains(character); });
}

/// Nil for what is no whole number, or one that 64 bits do not hold.
std::optional<qint64> wholeNumber(const QString &string)
{
    QString ascii;
    const auto characters = string.toUcs4();
    for (const char32_t character : characters) {
        const int digit = QChar::digitValue(character);
        if (digit >= 0)
            ascii += QString::number(digit);
        else if (ascii.isEmpty() && (character == U'-' || character == U'\u2212'))
            ascii += u'-';
        else
            return std::nullopt;
    }
    bool isNumber = false;
    const qint64 number = ascii.toLongLong(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

bool fail(QString *errorDescription, const QString &reason)
{
    if (errorDescription)
        *errorDescription = reason;
    return false;
}

/// Tests and tools may have no windows, and only the thread of the windows may sound.
void beep()
{
    const auto *const application = qobject_cast<QApplication *>(QCoreApplication::instance());
    if (application && application->thread() == QThread::currentThread())
        QApplication::beep();
}

} // namespace

ZEVNumericEnforcer::ZEVNumericEnforcer(QObject *parent)
    : QValidator(parent)
{
}

void ZEVNumericEnforcer::setMinimum(std::optional<qint64> minimum)
{
    if (m_minimum == minimum)
        return;
    m_minimum = minimum;
    Q_EMIT changed();
}

void ZEVNumericEnforcer::setMaximum(std::optional<qint64> maximum)
{
    if (m_maximum == maximum)
        return;
    m_maximum = maximum;
    Q_EMIT changed();
}

bool ZEVNumericEnforcer::isPartialStringValid(const QString &partialString, QString *, QString *) const
{
    const bool isValid = hasOnlyDigits(partialString);
    if (!isValid)
        beep();
    return isValid;
}

bool ZEVNumericEnforcer::getObjectValue(QVariant *object, const QString &string,
                                        QString *errorDescription) const
{
    const auto number = wholeNumber(string);
    if (!number && !string.isEmpty())
        return fail(errorDescription,
                    ZEVGlobalHelper::localizedStringForKey(u"“%1” is not a whole number.").arg(string));
    if (number && m_minimum && *number < *m_minimum)
        return fail(errorDescription, ZEVGlobalHelper::localizedStringForKey(u"The number is too small."));
    if (number && m_maximum && *number > *m_maximum)
        return fail(errorDescription, ZEVGlobalHelper::localizedStringForKey(u"The number is too large."));
    if (object)
        *object = number ? QVariant(*number) : QVariant();
    return true;
}

QString ZEVNumericEnforcer::stringForObjectValue(const QVariant &object) const
{
    if (!ZEVVariantValues::isNumber(object))
        return {};
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(ZEVVariantValues::integerValue(object));
}

QValidator::State ZEVNumericEnforcer::validate(QString &input, int &) const
{
    if (!isPartialStringValid(input))
        return Invalid;
    return getObjectValue(nullptr, input) ? Acceptable : Intermediate;
}

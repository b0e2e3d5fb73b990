// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QValidator>
#include <QVariant>

#include <optional>

/// Lets nothing but decimal digits, of any script, be typed, and reads them as a whole number. A Qt line edit
/// takes it as its validator. Reading is safe from any thread.
class ZEV_EXPORT ZEVNumericEnforcer : public QValidator {
    Q_OBJECT

public:
    explicit ZEVNumericEnforcer(QObject *parent = nullptr);

    /// What a number that is read must keep to, both included; nil for no limit.
    std::optional<qint64> minimum() const { return m_minimum; }
    void setMinimum(std::optional<qint64> minimum);
    std::optional<qint64> maximum() const { return m_maximum; }
    void setMaximum(std::optional<qint64> maximum);

    /// Whether what is typed so far may stand; the empty text may. Beeps when not. The other parameters are
    /// never set: what does not fit is refused without a word.
    bool isPartialStringValid(const QString &partialString, QString *newEditingString = nullptr,
                              QString *errorDescription = nullptr) const;

    /// Reads a number into \a object; the empty text is nil. False, with \a errorDescription set for the
    /// user, for what is no whole number within the limits.
    virtual bool getObjectValue(QVariant *object, const QString &string,
                                QString *errorDescription = nullptr) const;

    /// In the user's digits, without separators; empty for nil.
    QString stringForObjectValue(const QVariant &object) const;

    /// Invalid for what may not be typed, Intermediate for digits that are no number within the limits.
    State validate(QString &input, int &position) const override;

private:
    std::optional<qint64> m_minimum;
    std::optional<qint64> m_maximum;
};

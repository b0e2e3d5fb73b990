// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVPatternConversion_p.h>

#include <ZEVGlobalUtils/Platform/Text/ZEVRegularExpression.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVError.h>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

bool isText(const QVariant &object) { return object.typeId() == QMetaType::QString; }

/// The flag lets nothing but a line feed end a line.
ZEVRegularExpression madeTokenExpression()
{
    ZEVError error;
    const auto expression = ZEVRegularExpression::compile(u"(?d)%(.*?)%"_s, {}, &error);
    if (!expression)
        throw std::runtime_error("Cannot continue without a pattern matching regex: "
                                 + error.localizedDescription().toStdString());
    return *expression;
}

QList<ZEVRange> tokenRanges(const QString &patternString)
{
    static const ZEVRegularExpression expression = madeTokenExpression();
    return expression.matchesInString(patternString).ranges;
}

/// Text on its way into a pattern, where neighbouring pieces become one string.
class Collector {
public:
    void appendText(QStringView text) { m_pending += text; }
    void appendObject(const QVariant &object)
    {
        flush();
        m_pattern.append(object);
    }
    void flush()
    {
        if (!m_pending.isEmpty())
            m_pattern.append(std::exchange(m_pending, QString()));
    }
    QVariantList pattern() const { return m_pattern; }

private:
    QVariantList m_pattern;
    QString m_pending;
};

/// One element for each character of the text, and one for each token.
QVariantList flattened(const QVariantList &pattern, bool lossless)
{
    QVariantList elements;
    for (const QVariant &object : pattern) {
        if (!isText(object)) {
            elements.append(object);
            continue;
        }
        for (const QChar unit : object.toString())
            elements.append(QString(lossless ? unit : QChar(unit.unicode() & 0xFF)));
    }
    return elements;
}

/// Puts a flat list together again, and moves the caret where text before it collapses into a token.
class Rebuilder {
public:
    Rebuilder(const ZEVPatternConversion::RepresentedObject &representedObject, qsizetype caret)
        : m_representedObject(representedObject)
        , m_caret(caret)
    {
    }

    ZEVPatternConversion::Edited rebuilt(const QVariantList &elements)
    {
        for (const QVariant &element : elements) {
            if (isText(element))
                m_text += element.toString();
            else
                appendToken(element);
        }
        flush();
        return {m_objects, m_caret};
    }

private:
    void appendToken(const QVariant &token)
    {
        flush();
        m_objects.append(token);
        ++m_position;
    }

    void flush()
    {
        if (m_text.isEmpty())
            return;
        const QString text = std::exchange(m_text, QString());
        const QVariant object = m_representedObject(text);
        if (object.isValid() && m_position + text.size() <= m_caret)
            m_caret += 1 - text.size();
        m_position += object.isValid() ? 1 : text.size();
        m_objects.append(object.isValid() ? object : QVariant(text));
    }

    const ZEVPatternConversion::RepresentedObject &m_representedObject;
    QVariantList m_objects;
    QString m_text;
    qsizetype m_position = 0;
    qsizetype m_caret;
};

} // namespace

QString ZEVPatternConversion::patternString(const QVariantList &pattern, const EditingString &editingString)
{
    QString result;
    for (const QVariant &object : pattern) {
        if (isText(object))
            result += object.toString().replace(u'%', "%%"_L1);
        else if (const std::optional<QString> text = editingString(object))
            result += u'%' + *text + u'%';
    }
    return result;
}

QVariantList ZEVPatternConversion::pattern(const QString &patternString,
                                           const RepresentedObject &representedObject, Fidelity fidelity)
{
    const bool lossless = fidelity == Fidelity::Lossless;
    Collector collector;
    qsizetype end = 0; // of the match before
    for (const ZEVRange &match : tokenRanges(patternString)) {
        collector.appendText(QStringView(patternString).sliced(end, match.location - end));
        end = match.end();
        const QString editingString = patternString.mid(match.location + 1, match.length - 2);
        const QVariant object = editingString.isEmpty() ? QVariant() : representedObject(editingString);
        if (object.isValid())
            collector.appendObject(object);
        else if (editingString.isEmpty())
            collector.appendText(u"%");
        else if (lossless)
            collector.appendText(QStringView(patternString).sliced(match.location, match.length));
        else
            collector.flush();
    }
    const QString rest = patternString.mid(end);
    if (lossless) {
        collector.appendText(rest);
        collector.flush();
    } else if (!rest.isEmpty()) {
        return collector.pattern() << rest;
    }
    return collector.pattern();
}

ZEVPatternConversion::Edited ZEVPatternConversion::insertedToken(const QVariant &token,
                                                                 const QVariantList &pattern,
                                                                 qsizetype location, qsizetype length,
                                                                 const RepresentedObject &representedObject,
                                                                 Fidelity fidelity)
{
    QVariantList elements = flattened(pattern, fidelity == Fidelity::Lossless);
    const qsizetype start = qMin(location, elements.size());
    elements.remove(start, qMin(length, elements.size() - start));
    elements.insert(start, token);
    return Rebuilder(representedObject, start + 1).rebuilt(elements);
}

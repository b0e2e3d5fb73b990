// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/Export.h>

#include <QList>
#include <QMetaType>
#include <QString>

#include <optional>

class ZEVKeyedArchiver;
class ZEVKeyedUnarchiver;

/// One token of a find or replace pattern: a named wildcard, or a placeholder for a metadata field of the
/// host. A value; the texts may be nil, which is not the same as empty.
class ZEV_EXPORT ZEVPatternItem {
public:
    using Text = std::optional<QString>;

    ZEVPatternItem() = default;

    // The vocabulary. Every fragment stands in one outer capture group; email and webAddress have more
    // inside.
    static ZEVPatternItem itemWithTitle(const Text &title, const Text &tokenTitle, const Text &editingString,
                                        const Text &regexString);
    static ZEVPatternItem wildCard();
    static ZEVPatternItem anyCharacters();
    static ZEVPatternItem anyCharacter();
    static ZEVPatternItem anyWord();
    static ZEVPatternItem whiteSpace();
    static ZEVPatternItem digits();
    static ZEVPatternItem tab();
    static ZEVPatternItem email();
    static ZEVPatternItem webAddress();
    static ZEVPatternItem lineBreak();

    /// wildCard, anyCharacters, anyWord, anyCharacter, whiteSpace, digits. Kept: the other four are not among
    /// them, they have menus of their own.
    static QList<ZEVPatternItem> escapeItems();
    static QString escapeMenuLocalizedName();

    /// The long name that menus show.
    const Text &title() const { return m_title; }
    void setTitle(const Text &title) { m_title = title; }

    /// The short text inside the token; the title where none is set.
    const Text &tokenTitle() const { return m_tokenTitle ? m_tokenTitle : m_title; }
    void setTokenTitle(const Text &tokenTitle) { m_tokenTitle = tokenTitle; }

    /// What stands for the token while the pattern is edited as text.
    const Text &editingString() const { return m_editingString; }
    void setEditingString(const Text &editingString) { m_editingString = editingString; }

    /// The fragment of the expression to search with.
    const Text &regexString() const { return m_regexString; }
    void setRegexString(const Text &regexString) { m_regexString = regexString; }

    /// The fragment of a replacement; the regexString where none is set.
    const Text &regexTemplateString() const
    {
        return m_regexTemplateString ? m_regexTemplateString : m_regexString;
    }
    void setRegexTemplateString(const Text &regexTemplate) { m_regexTemplateString = regexTemplate; }

    /// Names the transformer that formats the placeholder's value.
    const Text &valueTransformerName() const { return m_valueTransformerName; }
    void setValueTransformerName(const Text &name) { m_valueTransformerName = name; }

    /// The metadata field that the item stands for; nil for a wildcard.
    const Text &metadataKeyPath() const { return m_metadataKeyPath; }
    void setMetadataKeyPath(const Text &keyPath) { m_metadataKeyPath = keyPath; }

    bool representsNumericValue() const { return m_representsNumericValue; }
    void setRepresentsNumericValue(bool represents) { m_representsNumericValue = represents; }
    bool representsDate() const { return m_representsDate; }
    void setRepresentsDate(bool represents) { m_representsDate = represents; }

    /// A wildcard: it captures text and binds it to no field.
    bool isDummy() const { return !m_metadataKeyPath; }

    /// By key path, effective template and effective token title; nothing else counts.
    bool isEqualToPatternItem(const ZEVPatternItem &other) const;
    size_t hash() const;

    /// Kept: only the title, the (effective) token title, the editing string and the regexString are
    /// archived, so a placeholder comes back as a wildcard and a tab's template as its expression.
    void encodeWithCoder(ZEVKeyedArchiver &archiver) const;
    explicit ZEVPatternItem(ZEVKeyedUnarchiver &unarchiver);

    friend bool operator==(const ZEVPatternItem &a, const ZEVPatternItem &b)
    {
        return a.isEqualToPatternItem(b);
    }
    friend size_t qHash(const ZEVPatternItem &item, size_t seed = 0) { return item.hash() ^ seed; }

private:
    Text m_title;
    Text m_tokenTitle;
    Text m_editingString;
    Text m_regexString;
    Text m_regexTemplateString;
    Text m_valueTransformerName;
    Text m_metadataKeyPath;
    bool m_representsNumericValue = false;
    bool m_representsDate = false;
};

Q_DECLARE_METATYPE(ZEVPatternItem)

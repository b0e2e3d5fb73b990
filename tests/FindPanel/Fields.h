// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindEngine/ZEVPatternItem.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVPatternTokens.h>
#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenTextStorage.h>

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

/// A short name for a token whose editing string and title are the same.
inline ZEVPatternItem item(const QString &name)
{
    return ZEVPatternItem::itemWithTitle(name, name, name, name);
}

/// Patterns in tests: u"Track <Title>"_s is text and the token Title.
inline QVariantList pattern(const QString &shown)
{
    QVariantList result;
    for (const QString &part : shown.split(QRegularExpression(u"(?=<)|(?<=>)"_s), Qt::SkipEmptyParts))
        result << (part.startsWith(u'<') ? QVariant::fromValue(item(part.mid(1, part.size() - 2)))
                                         : QVariant(part));
    return result;
}

/// The other way round; texts that lie side by side are told apart by a bar.
inline QString shown(const QVariantList &pattern)
{
    QStringList parts;
    for (const QVariant &object : pattern)
        parts << (object.canConvert<ZEVPatternItem>()
                      ? u'<' + object.value<ZEVPatternItem>().title().value() + u'>'
                      : object.toString());
    return parts.join(u'|').replace(u"|<"_s, u"<"_s).replace(u">|"_s, u">"_s);
}

/// A pattern field in a window that has the focus, and knows the tokens Title and Artist.
struct Field {
    explicit Field(bool lossless = true)
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(&field);
        layout->addWidget(&other);
        field.setDelegate(&tokens);
        field.setLossless(lossless);
        window.resize(400, 100);
        window.show();
        window.activateWindow();
        field.setFocus();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("No active window");
    }

    QString shownValue() const { return shown(field.objectValue()); }
    void type(const QString &text) { QTest::keyClicks(&field, text); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&field, key, modifiers); }
    QPoint centreOf(int index) const
    {
        QTextCursor cursor(field.document());
        cursor.setPosition(index);
        const QRect left = field.cursorRect(cursor);
        cursor.setPosition(index + 1);
        return (left.center() + field.cursorRect(cursor).center()) / 2;
    }

    ZEVPatternTokens tokens{{{item(u"Title"_s)}, {item(u"Artist"_s)}}};
    QWidget window;
    ZEVTokenField &field = *new ZEVTokenField;
    QLineEdit &other = *new QLineEdit;
};

// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#pragma once

#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenFieldMenuDelegate.h>
#include <ZEVGlobalUtils/FindPanel/TokenFields/OEXTokenField.h>

#include <QPointer>

class QAction;
class QMenu;
class ZEVTokenFieldCell;

/// The field in which a pattern is typed: text and tokens, a list of QString and ZEVPatternItem. Its delegate
/// converts between tokens and their editing strings. It remembers its last pattern and a list of saved ones
/// in the user defaults, under its autosave name.
class ZEV_EXPORT ZEVTokenField : public OEXTokenField {
    Q_OBJECT
    Q_PROPERTY(QString patternStringValue READ patternStringValue WRITE setPatternStringValue NOTIFY
                   patternStringValueChanged)
    Q_PROPERTY(QStringList patterns READ patterns WRITE setPatterns)
    Q_PROPERTY(QString autosaveName READ autosaveName WRITE setAutosaveName)
    Q_PROPERTY(bool selectsTextWhenFocused READ selectsTextWhenFocused WRITE setSelectsTextWhenFocused)
    Q_PROPERTY(bool lossless READ isLossless WRITE setLossless)

public:
    explicit ZEVTokenField(QWidget *parent = nullptr);
    explicit ZEVTokenField(std::unique_ptr<ZEVTokenFieldCell> cell, QWidget *parent = nullptr);
    ~ZEVTokenField() override;

    /// On focus everything is selected, instead of the caret being put at the end. Neither happens when the
    /// window comes back: the caret stays where it was.
    bool selectsTextWhenFocused() const { return m_selectsTextWhenFocused; }
    void setSelectsTextWhenFocused(bool selects) { m_selectsTextWhenFocused = selects; }

    /// Off, patterns are converted as they have always been: unknown tokens, some text beside percent signs
    /// and, where a token is inserted, characters beyond Latin-1 are lost. On, everything that is no token
    /// stays as it was typed.
    bool isLossless() const { return m_lossless; }
    void setLossless(bool lossless) { m_lossless = lossless; }

    /// Where the field remembers its patterns; empty is nowhere. Setting a name loads what is there; setting
    /// none removes nothing (kept).
    const QString &autosaveName() const { return m_autosaveName; }
    void setAutosaveName(const QString &name);
    QString lastUsedPatternDefaultsKey() const { return m_autosaveName; }
    QString patternsDefaultsKey() const;
    void loadDefaults();
    void saveDefaults();

    /// The pattern as one line of text, tokens between percent signs.
    QString patternStringValue() const;
    void setPatternStringValue(const QString &patternString);
    QString patternStringForConversionPattern(const QVariantList &pattern) const;
    QVariantList conversionPatternForPatternString(const QString &patternString) const;

    /// The saved patterns as such texts, oldest first. Later duplicates are dropped.
    const QStringList &patterns() const { return m_patternsSet; }
    void setPatterns(const QStringList &patterns);
    void addPatternToSaved(const QVariantList &pattern);

    /// The field builds its menus when they are about to open, until somebody else says that it does (see
    /// ZEVMenuBuilder).
    QMenu *dropDownMenu() const { return m_dropDownMenu.get(); }
    QMenu *patternsMenu() const { return m_patternsMenu.get(); }
    QAction *addTokensItem() const { return m_addTokensItem; }
    void menuNeedsUpdate(QMenu *menu);
    bool validateMenuItem(const QAction *item) const;

    /// What is inserted from: its owner fills it. Null at first.
    QMenu *menu() const;
    void setMenu(QMenu *menu);

    ZEVTokenFieldMenuDelegate *menuDelegate() const { return m_menuDelegate.get(); }
    void setMenuDelegate(ZEVWeakRef<ZEVTokenFieldMenuDelegate> delegate)
    {
        m_menuDelegate = std::move(delegate);
    }

    /// Puts the token in place of the selection, and the caret behind it, as the user does it: undoable, and
    /// not where the field is read-only.
    void insertToken(const QVariant &token);
    /// Gives the field the focus. Null when it cannot take it.
    QTextEdit *ensureFieldEditor();
    void moveEditorCaretToEndOfStringIfNeeded();

public Q_SLOTS:
    void insertNewline();
    void moveDown();
    // As the user does them: undoable, and without effect on the value of a read-only field.
    void clear(); // unlike the base's; the action follows
    void usePattern(QAction *sender);
    void savePattern();
    void removePattern();
    void popUpRecentsMenu();
    void popUpMenu();

Q_SIGNALS:
    void patternStringValueChanged();

protected:
    bool isSameObject(const QVariant &one, const QVariant &other) const override;
    QVariantList objectsForPastedText(const QString &text) const override;
    bool performCommand(ZEVTextCommand command) override;
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void setUpMenus();
    void watchWindow();
    bool isSaved() const;
    void patternsMenuNeedsUpdate();
    void dropDownMenuNeedsUpdate();
    void addPatternItem(const QString &patternString);
    QVariant objectForEditingString(const QString &editingString) const;

    ZEVWeakRef<ZEVTokenFieldMenuDelegate> m_menuDelegate;
    /// A menu touches itself once more after its item was chosen, which may have ended the field.
    struct Later {
        void operator()(QMenu *menu) const;
    };
    std::unique_ptr<QMenu, Later> m_dropDownMenu;
    std::unique_ptr<QMenu, Later> m_patternsMenu;
    QAction *m_addTokensItem = nullptr;
    QPointer<QMenu> m_menu;
    QPointer<QWidget> m_watchedWindow;
    QString m_autosaveName;
    QStringList m_patternsSet;
    bool m_selectsTextWhenFocused = false;
    bool m_lossless = false;
    bool m_hasBeenFocused = false; ///< since the window was shown
};

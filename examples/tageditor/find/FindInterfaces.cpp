// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/find/FindInterfaces.h>

#include <tageditor/find/FieldScope.h>
#include <tageditor/find/TagTokens.h>

#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>

#include <QMenu>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

void setUp(ZEVTextFinderUserInterfaceVC &controller)
{
    controller.setPatternItems(TagTokens::findTokens());
    controller.setReplacePatternItems(TagTokens::replaceTokens());
    controller.setCaseInsensitiveSearch(true); // at first, as people look for titles
}

/// Patterns are texts of tags, in which every blank counts.
void keepEveryCharacter(const ZEVTextFinderUserInterfaceVC &controller)
{
    controller.findTokenField()->setLossless(true);
    controller.replaceTokenField()->setLossless(true);
}

/// What another program has searched for last comes before what was typed here the last time.
void rememberPattern(ZEVTokenField *field, const QString &name)
{
    const QVariantList pattern = field->objectValue();
    field->setAutosaveName(name);
    if (!pattern.isEmpty())
        field->setObjectValue(pattern);
}

void rememberPatterns(const ZEVTextFinderUserInterfaceVC &controller)
{
    rememberPattern(controller.findTokenField(), u"FindPattern"_s);
    rememberPattern(controller.replaceTokenField(), u"ReplacePattern"_s);
}

} // namespace

FindBar::FindBar(QObject *parent)
    : ZEVTextFinderViewController(parent)
{
    setUp(*this);
}

void FindBar::viewDidLoad()
{
    keepEveryCharacter(*this);
    ZEVTextFinderViewController::viewDidLoad();
    rememberPatterns(*this);
}

FindPanel::FindPanel(QObject *parent)
    : ZEVFindPanelQueryParamsController(parent)
{
    setUp(*this);
}

void FindPanel::viewDidLoad()
{
    keepEveryCharacter(*this);
    ZEVFindPanelQueryParamsController::viewDidLoad();
    // A query that was kept says nothing of where to search.
    const auto searchSomewhere = [this] {
        if (!query().scope())
            setScope(FieldScope::all().first());
    };
    connect(this, &ZEVTextFinderUserInterfaceVC::queryChanged, this, searchSomewhere);
    searchSomewhere();
    auto *button = view()->findChild<QAbstractButton *>(u"scopeButton"_s);
    button->setToolTip(tr("Which tags to search"));
    connect(button, &QAbstractButton::clicked, this, &FindPanel::chooseScope);
}

void FindPanel::chooseScope()
{
    auto *button = view()->findChild<QAbstractButton *>(u"scopeButton"_s);
    auto *menu = new QMenu(button);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const std::shared_ptr<FieldScope> &scope : FieldScope::all()) {
        QAction *action =
            menu->addAction(scope->title().value_or(QString()), this, [this, scope] { setScope(scope); });
        action->setCheckable(true);
        action->setChecked(query().scope() == scope);
    }
    menu->popup(button->mapToGlobal(QPoint(0, button->height())));
}

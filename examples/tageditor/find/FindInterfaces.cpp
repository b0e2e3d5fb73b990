// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/find/FindInterfaces.h>

#include <tageditor/find/FieldScope.h>
#include <tageditor/find/TagTokens.h>

#include <ZEVGlobalUtils/FindPanel/PatternFields/ZEVTokenField.h>

using namespace Qt::StringLiterals;

namespace {

void setUp(ZEVTextFinderUserInterfaceVC &controller)
{
    controller.setPatternItems(TagTokens::findTokens());
    controller.setReplacePatternItems(TagTokens::replaceTokens());
    controller.setCaseInsensitiveSearch(true); // at first, as people look for titles
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
    ZEVFindPanelQueryParamsController::viewDidLoad();
    setScopes(FieldScope::all());
    view()->findChild<QWidget *>(u"scopeButton"_s)->setToolTip(tr("Which tags to search"));
}

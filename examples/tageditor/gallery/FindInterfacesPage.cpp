// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include <tageditor/gallery/FindInterfacesPage.h>

#include <ZEVGlobalUtils/FindEngine/ZEVFindActionNumber.h>
#include <ZEVGlobalUtils/FindEngine/ZEVTextFinder.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindBarContainerView.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVFindPanelQueryParamsController.h>
#include <ZEVGlobalUtils/FindPanel/FindInterfaces/ZEVTextFinderUserInterfaceVC.h>

#include <QGroupBox>
#include <QPlainTextEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QWidget *titled(const QString &title, QWidget *content)
{
    auto *box = new QGroupBox(title);
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 4, 0, 0);
    layout->addWidget(content);
    return box;
}

const QVariantList &samplePattern()
{
    static const QVariantList pattern{u"Track "_s, QVariant::fromValue(ZEVPatternItem::digits())};
    return pattern;
}

QWidget *findBar(qint64 action, std::optional<qsizetype> matches, bool tooComplex)
{
    auto *editor = new QPlainTextEdit(u"Track 1, Track 22"_s);
    editor->setMaximumHeight(60);
    auto *container = new ZEVFindBarContainerView(editor);
    auto *finder = new ZEVTextFinder(container);
    finder->setFindBarContainer(container);
    auto *bar = static_cast<ZEVTextFinderUserInterfaceVC *>(finder->textFinderViewController());
    finder->performAction(action);
    bar->setSearchPattern(matches ? samplePattern() : QVariantList());
    bar->setNumberOfMatches(matches);
    bar->setSearchLimitReached(tooComplex);
    container->setMinimumHeight(140);
    return container;
}

QWidget *queryPanel()
{
    auto *controller = new ZEVFindPanelQueryParamsController;
    QWidget *panel = controller->view();
    controller->setParent(panel);
    controller->setSearchPattern(samplePattern());
    controller->performSearch();
    controller->setNumberOfMatches(2);
    return panel;
}

} // namespace

QWidget *findInterfacesPage(QWidget *parent)
{
    using namespace ZEVFindActionNumber;
    auto *page = new QWidget(parent);
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(titled(u"Find"_s, findBar(ShowFindInterface, std::nullopt, false)));
    layout->addWidget(titled(u"Find and replace"_s, findBar(ShowReplaceInterface, 2, true)));
    layout->addWidget(titled(u"Query panel"_s, queryPanel()));
    layout->addStretch();
    return page;
}

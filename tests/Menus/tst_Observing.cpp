// SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
// SPDX-License-Identifier: MIT

#include "../Rows.h"

#include <ZEVGlobalUtils/Menus/Observing/ZEVKeyValueObserver.h>
#include <ZEVGlobalUtils/Menus/Observing/ZEVObjectKeyValue.h>
#include <ZEVGlobalUtils/Menus/Observing/ZEVObjectUserDefaultsBindings.h>
#include <ZEVGlobalUtils/Menus/Observing/ZEVResponder.h>
#include <ZEVGlobalUtils/Platform/Values/ZEVUserDefaults.h>
#include <ZEVGlobalUtils/Transforms/Formatters/ZEVValueTransformer.h>

#include <QSettings>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using Observer = ZEVKeyValueObserver;

class Node : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString title MEMBER m_title NOTIFY titleChanged)
    Q_PROPERTY(int size MEMBER m_size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(QObject *next MEMBER m_next NOTIFY nextChanged)
    Q_PROPERTY(QVariantList list MEMBER m_list)

public:
    using QObject::QObject;
    explicit Node(const QString &title, QObject *next = nullptr)
        : m_title(title)
        , m_next(next)
    {
    }

    Q_INVOKABLE void setNilValueForKey(const QString &key) { m_nilKeys += key; }
    void setSize(int size)
    {
        m_size = qMin(size, 100);
        Q_EMIT sizeChanged();
    }
    void setNext(QObject *next) { setProperty("next", QVariant::fromValue(next)); }

    QString m_title;
    int m_size = 0;
    QObject *m_next = nullptr;
    QVariantList m_list;
    QStringList m_nilKeys;

Q_SIGNALS:
    void titleChanged();
    void sizeChanged();
    void nextChanged();
};

/// Notes each change, and does what a test wants done in the callback.
class Target : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    Q_INVOKABLE void changed(const QVariantMap &change)
    {
        const auto text = [&change](const QString &key) {
            return change.contains(key) ? change[key].toString() + u';' : QString();
        };
        last = change;
        said += text(u"old"_s) + text(u"new"_s) + text(u"kind"_s);
        if (answer)
            answer();
    }
    Q_INVOKABLE void plain() { said += u'!'; }
    Q_INVOKABLE void number(int n) { said += QString::number(n); }

    QString said;
    QVariantMap last;
    std::function<void()> answer;
};

class tst_Observing : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_folder;

private Q_SLOTS:
    void initTestCase()
    {
        ZEVUserDefaults::setStandardStore(
            std::make_unique<QSettings>(m_folder.filePath(u"store.ini"_s), QSettings::IniFormat));
    }

    void keyPathsFollowReplacedObjects()
    {
        Node last(u"a"_s), other(u"b"_s), middle(u"m"_s, &last), first(u"f"_s, &middle);
        Target target;
        auto observer = Observer::observeObject(&first, u"next.next.title"_s, &target, "changed",
                                                Observer::New | Observer::Old | Observer::Initial);
        QCOMPARE(std::exchange(target.said, {}), u"a;1;"_s);
        middle.setNext(&other);
        QCOMPARE(std::exchange(target.said, {}), u"a;b;1;"_s);
        last.setProperty("title", u"unseen"_s);
        other.setProperty("title", u"c"_s);
        QCOMPARE(std::exchange(target.said, {}), u"b;c;1;"_s);
        first.setNext(nullptr);
        QCOMPARE(std::exchange(target.said, {}), u"c;;1;"_s);
        first.setNext(&middle);
        QCOMPARE(std::exchange(target.said, {}), u";c;1;"_s);
        observer.reset();
        other.setProperty("title", u"d"_s);
        QCOMPARE(target.said, QString());
        QVERIFY(!Observer::observeObject(nullptr, u"title"_s, &target, "changed"));
    }

    void eitherEndMayGoFirst()
    {
        Target parent;
        auto *child = new QObject(&parent); // knows no action, so its parent is asked
        auto node = std::make_unique<Node>(u"a"_s);
        auto observer = Observer::observeObject(node.get(), u"title"_s, child, "changed");
        node->setProperty("title", u"b"_s);
        QCOMPARE(std::exchange(parent.said, {}), u"1;"_s);
        delete child;
        node->setProperty("title", u"c"_s);
        QCOMPARE(parent.said, QString());
        observer = Observer::observeObject(node.get(), u"title"_s, &parent, "plain");
        parent.answer = [&observer] { observer.reset(); };
        node.reset();
        QVERIFY(!observer->observedObject());
    }

    void theActionMayDeleteEverything()
    {
        auto *node = new Node(u"a"_s);
        auto *old = new Node(u"o"_s);
        Target target;
        auto observer = Observer::observeObject(node, u"title"_s, &target, "changed");
        target.answer = [&observer] { observer.reset(); };
        node->setProperty("title", u"b"_s);
        QVERIFY(!observer);
        // An old value that is no more is not handed out.
        node->setNext(old);
        target.answer = nullptr;
        observer = Observer::observeObject(node, u"next"_s, &target, "changed", Observer::Old);
        delete old;
        node->setNext(nullptr);
        QVERIFY(target.last.contains(u"old"_s));
        QVERIFY(!target.last[u"old"_s].isValid());
        delete node;
    }

    void actionsTravelUp()
    {
        Target top;
        Node middle;
        auto *low = new QObject(&middle);
        middle.setParent(&top);
        const std::tuple<QByteArray, QVariant, bool, QString> rows[] = {
            {"plain", 7, true, u"!"_s},
            {"number", u"12"_s, true, u"12"_s},
            {"number", u"twelve"_s, false, {}},
            {"titleChanged", {}, false, {}}, // a signal is no action
            {"none", {}, false, {}},
            {"plai", {}, false, {}},
        };
        for (const auto &[selector, object, isHandled, said] : rows) {
            COMPARE_ROW(selector, ZEVResponder::tryToPerform(low, selector, object), isHandled);
            COMPARE_ROW(selector, std::exchange(top.said, {}), said);
        }
        middle.setParent(nullptr);
        QVERIFY(!ZEVResponder::tryToPerform(nullptr, "plain"));
    }

    void onlyMissingValuesAreSet()
    {
        Node next, node(QString(), &next);
        ZEVObjectKeyValue::setUndefinedValue(&node, u"x"_s, u"next.title"_s);
        ZEVObjectKeyValue::setUndefinedValue(&node, u"y"_s, u"next.title"_s);
        QCOMPARE(next.m_title, u"x"_s);
        const QVariant null = QVariant::fromValue(nullptr);
        ZEVObjectKeyValue::setUndefinedValuesForKeysWithDictionary(
            &node, {{u"title"_s, null}, {u"next"_s, null}, {u"size"_s, 5}});
        QCOMPARE(node.m_nilKeys, QStringList{u"title"_s});
        QCOMPARE(node.m_size, 0); // a number is there, even 0
        ZEVObjectKeyValue::setValue(&node, u"7"_s, QStringList{u"title"_s, u"nothing"_s, u"size"_s});
        QCOMPARE(node.m_title + QString::number(node.m_size), u"77"_s);
    }

    void collectionsHaveValues()
    {
        const QVariant null = QVariant::fromValue(nullptr);
        const QVariantMap named{{u"t"_s, u"x"_s}};
        const std::tuple<QString, QVariantList, bool> rows[] = {
            {u"list"_s, {}, false},
            {u"list"_s, {null}, false},
            {u"list"_s, {u"a"_s}, true},
            {u"list"_s, {null, null}, true},
            {u"list.t"_s, {named}, true},
            {u"list.u"_s, {named}, false},
            {u"list"_s, {QString()}, false},
            {u"list"_s, {u""_s}, true},
            {u"list"_s, {QVariant::fromValue<QObject *>(nullptr)}, false},
            {u"title"_s, {u"a"_s}, false},
            {u"none.t"_s, {u"a"_s}, false},
        };
        for (const auto &[path, list, hasValue] : rows) {
            Node node(u"text"_s);
            node.m_list = list;
            COMPARE_ROW(path, ZEVObjectKeyValue::hasValueForKeyPath(&node, path), hasValue);
        }
    }

    void propertiesAndDefaultsFollowEachOther()
    {
        using namespace ZEVObjectUserDefaultsBindings;
        auto *defaults = ZEVUserDefaults::standardUserDefaults();
        defaults->setObject(3, u"size"_s);
        Node one, two;
        QVERIFY(bind(&one, u"size"_s, u"size"_s));
        QVERIFY(bind(&two, u"size"_s, u"size"_s));
        QVERIFY(!bind(&one, u"nothing"_s, u"size"_s));
        one.setProperty("size", 4);
        QCOMPARE(two.m_size, 4);
        defaults->setObject(500, u"size"_s); // more than the properties take
        QCOMPARE(one.m_size + two.m_size, 200);
        QCOMPARE(defaults->objectForKey(u"size"_s), 100);
        defaults->setObject(u"no number"_s, u"size"_s);
        defaults->removeObjectForKey(u"size"_s);
        QCOMPARE(two.m_size, 100);
        QVERIFY(bind(&one, u"size"_s, u"size"_s, {.nullPlaceholder = -1}));
        QCOMPARE(one.m_size, -1);
        unbindFromUserDefaults(&two, u"size"_s); // which leaves it bound
        defaults->setObject(6, u"size"_s);
        QCOMPARE(two.m_size, 6);
        unbind(&two, u"size"_s);
        two.setProperty("size", 8);
        QCOMPARE(one.m_size, 6);
        struct Half : ZEVValueTransformer {
            QMetaType transformedValueClass() const override { return QMetaType::fromType<int>(); }
            bool allowsReverseTransformation() const override { return isReversible; }
            QVariant transformedValue(const QVariant &value) const override { return value.toInt() / 2; }
            QVariant reverseTransformedValue(const QVariant &value) const override
            {
                return value.toInt() * 2;
            }
            bool isReversible = true;
        };
        const auto half = std::make_shared<Half>();
        QVERIFY(bind(&two, u"size"_s, u"size"_s, {.valueTransformer = half}));
        QCOMPARE(two.m_size, 3);
        two.setProperty("size", 5);
        QCOMPARE(one.m_size, 10);
        half->isReversible = false;
        two.setProperty("size", 6);
        QCOMPARE(one.m_size, 10);
        unbind(&two, u"size"_s);
        auto *fragile = new Node;
        bind(fragile, u"size"_s, u"size"_s);
        connect(fragile, &Node::sizeChanged, [fragile] { delete fragile; });
        defaults->setObject(9, u"size"_s);
        QCOMPARE(one.m_size, 9);
    }
};

QTEST_GUILESS_MAIN(tst_Observing)
#include "tst_Observing.moc"

#pragma once

// Shared by the enumeration-holder tests: one data row per enumeration with
// its keys and values in declaration order, checked against the meta-object.

#include <QByteArray>
#include <QList>
#include <QMetaEnum>
#include <QMetaType>
#include <QTest>

#include <initializer_list>
#include <utility>

Q_DECLARE_METATYPE(QMetaEnum)

namespace MetaEnumTable {

using Keys = QList<QByteArray>;
using Values = QList<int>;

inline void addColumns() {
    QTest::addColumn<QMetaEnum>("metaEnum");
    QTest::addColumn<QByteArray>("metaTypeName");
    QTest::addColumn<bool>("scoped");
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<Values>("values");
}

// The row name is the expected qualified name ("KaButtonEnum::Style").
template <typename E>
void addRow(const char* qualifiedName, std::initializer_list<std::pair<const char*, int>> entries,
            bool scoped = false) {
    Keys keys;
    Values values;
    for (const auto& entry : entries) {
        keys << QByteArray(entry.first);
        values << entry.second;
    }
    QTest::newRow(qualifiedName) << QMetaEnum::fromType<E>() << QByteArray(QMetaType::fromType<E>().name())
                                 << scoped << keys << values;
}

// Body of the data-driven test: every key, its value and position.
inline void verifyRow() {
    QFETCH(QMetaEnum, metaEnum);
    QFETCH(QByteArray, metaTypeName);
    QFETCH(bool, scoped);
    QFETCH(Keys, keys);
    QFETCH(Values, values);

    const QByteArray qualifiedName(QTest::currentDataTag());
    QVERIFY(metaEnum.isValid());
    QCOMPARE(QByteArray(metaEnum.scope()) + "::" + metaEnum.enumName(), qualifiedName);
    QCOMPARE(metaTypeName, qualifiedName);
    QCOMPARE(metaEnum.isScoped(), scoped);
    QVERIFY(!metaEnum.isFlag());
    QCOMPARE(metaEnum.keyCount(), keys.size());
    for (int i = 0; i < keys.size(); ++i) {
        QCOMPARE(QByteArray(metaEnum.key(i)), keys.at(i));
        QCOMPARE(metaEnum.value(i), values.at(i));
        bool ok = false;
        QCOMPARE(metaEnum.keyToValue(keys.at(i).constData(), &ok), values.at(i));
        QVERIFY(ok);
        QCOMPARE(QByteArray(metaEnum.valueToKey(values.at(i))), keys.at(i));
    }
    // Lookups are case-sensitive, so the spelling of each key matters.
    for (const QByteArray& key : keys) {
        const QByteArray lower = key.toLower();
        if (lower == key || keys.contains(lower))
            continue;
        bool ok = true;
        metaEnum.keyToValue(lower.constData(), &ok);
        QVERIFY2(!ok, lower.constData());
    }
}

// Holder classes carry enumerations only: no properties, signals or slots.
inline void verifyBareHolder(const QMetaObject& holder, const char* className, int enumerationCount) {
    QCOMPARE(QByteArray(holder.className()), QByteArray(className));
    QCOMPARE(holder.enumeratorCount() - holder.enumeratorOffset(), enumerationCount);
    QCOMPARE(holder.propertyCount(), holder.propertyOffset());
    QCOMPARE(holder.methodCount(), holder.methodOffset());
}

} // namespace MetaEnumTable

#include "kadiscoverabilityenum.h"
#include "kamenuenum.h"
#include "kapopupenum.h"

#include "metaenumtable.h"

#include <QTest>

// The holder namespaces: KaMenuEnum, KaDiscoverabilityEnum, KaPopupEnum.
class tst_KaNamespaceEnums : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void keysAndValues_data();
    void keysAndValues() { MetaEnumTable::verifyRow(); }
    void namespaceMetaObjects();
};

void tst_KaNamespaceEnums::keysAndValues_data() {
    using namespace MetaEnumTable;
    addColumns();
    addRow<KaMenuEnum::Style>("KaMenuEnum::Style", {{"Normal", 0}, {"Circular", 1}});
    addRow<KaMenuEnum::Size>("KaMenuEnum::Size", {{"Small", 0}, {"Medium", 1}, {"Large", 2}});
    addRow<KaDiscoverabilityEnum::DiscoverabilityLabelType>("KaDiscoverabilityEnum::DiscoverabilityLabelType",
                                                            {{"IconWithTextTag", 0},
                                                             {"IconTag", 1},
                                                             {"IconWithBorder", 2},
                                                             {"IconBadge", 3},
                                                             {"NewFeature", 4},
                                                             {"TipHelp", 5},
                                                             {"TipShortcut", 6}});
    addRow<KaPopupEnum::Alignment>("KaPopupEnum::Alignment",
                                   {{"None", 0}, {"Top", 1}, {"Left", 2}, {"Right", 3}, {"Bottom", 4}});
}

void tst_KaNamespaceEnums::namespaceMetaObjects() {
    QCOMPARE(QByteArray(KaMenuEnum::staticMetaObject.className()), QByteArray("KaMenuEnum"));
    QCOMPARE(KaMenuEnum::staticMetaObject.enumeratorCount(), 2);
    QCOMPARE(QByteArray(KaDiscoverabilityEnum::staticMetaObject.className()),
             QByteArray("KaDiscoverabilityEnum"));
    QCOMPARE(KaDiscoverabilityEnum::staticMetaObject.enumeratorCount(), 1);
    QCOMPARE(QByteArray(KaPopupEnum::staticMetaObject.className()), QByteArray("KaPopupEnum"));
    QCOMPARE(KaPopupEnum::staticMetaObject.enumeratorCount(), 1);
    // Lookups through the namespace's meta-object find the same enumeration.
    const int index = KaPopupEnum::staticMetaObject.indexOfEnumerator("Alignment");
    QVERIFY(index >= 0);
    QCOMPARE(KaPopupEnum::staticMetaObject.enumerator(index).keyToValue("Bottom"), int(KaPopupEnum::Bottom));
}

QTEST_GUILESS_MAIN(tst_KaNamespaceEnums)
#include "tst_kanamespaceenums.moc"

#include "kawidgetdata.h"

#include <QMetaEnum>
#include <QTest>

#include <type_traits>

namespace {

// Every field as a string, so that two records can be compared as a whole
// and a difference names the field.
QStringList fields(const KaWidgetData& d) {
    return {QStringLiteral("alignment=%1").arg(int(d.m_alignment)),
            QStringLiteral("arrowPostion=%1").arg(int(d.m_arrowPostion)),
            QStringLiteral("autoDismiss=%1").arg(d.m_autoDismiss),
            QStringLiteral("dismissTimerTicks=%1").arg(d.m_dismissTimerTicks),
            QStringLiteral("dismissWithParentFocused=%1").arg(d.m_dismissWithParentFocused),
            QStringLiteral("dismissPopupOnSourceMove=%1").arg(d.m_dismissPopupOnSourceMove),
            QStringLiteral("activateOnShow=%1").arg(d.m_activateOnShow),
            QStringLiteral("fitInMainWindowGeometry=%1").arg(d.m_fitInMainWindowGeometry),
            QStringLiteral("focusSourceOnClose=%1").arg(d.m_focusSourceOnClose),
            QStringLiteral("selfReactivate=%1").arg(d.m_selfReactivate),
            QStringLiteral("showOnSourceScreen=%1").arg(d.m_showOnSourceScreen),
            QStringLiteral("shouldTakeFocus=%1").arg(d.m_shouldTakeFocus),
            QStringLiteral("skipDeepFocusCheck=%1").arg(d.m_skipDeepFocusCheck),
            QStringLiteral("shouldHaveTransparentBackground=%1").arg(d.m_shouldHaveTransparentBackground),
            QStringLiteral("moveWithSource=%1").arg(d.m_moveWithSource),
            QStringLiteral("setReverseColor=%1").arg(d.m_setReverseColor),
            QStringLiteral("fixedArrowSize=%1").arg(d.m_fixedArrowSize),
            QStringLiteral("offset=%1,%2").arg(d.m_offset.x()).arg(d.m_offset.y()),
            QStringLiteral("headerText=%1").arg(d.m_headerText)};
}

} // namespace

class tst_KaWidgetData : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void defaults();
    void enumerations();
    void chaining();
    void everySetter_data();
    void everySetter();
    void copiesAreIndependent();
    void negativeTicksClamped();
    void toArrowPosition_data();
    void toArrowPosition();
};

void tst_KaWidgetData::defaults() {
    const KaWidgetData d;
    const QStringList expected = {
        "alignment=1",
        "arrowPostion=0",
        "autoDismiss=1",
        "dismissTimerTicks=0",
        "dismissWithParentFocused=1",
        "dismissPopupOnSourceMove=0",
        "activateOnShow=0",
        "fitInMainWindowGeometry=0",
        "focusSourceOnClose=1",
        "selfReactivate=1",
        "showOnSourceScreen=0",
        "shouldTakeFocus=1",
        "skipDeepFocusCheck=0",
        "shouldHaveTransparentBackground=1",
        "moveWithSource=0",
        "setReverseColor=0",
        "fixedArrowSize=0",
        "offset=0,0",
        "headerText=",
    };
    QCOMPARE(fields(d), expected);
    QCOMPARE(KaWidgetData::maxPopoverWidth, 306);
}

void tst_KaWidgetData::enumerations() {
    static_assert(sizeof(KaWidgetData::Alignment) == 1, "one byte");
    static_assert(sizeof(KaWidgetData::ArrowPostion) == 1, "one byte");
    const QMetaEnum arrows = QMetaEnum::fromType<KaWidgetData::ArrowPostion>();
    QCOMPARE(arrows.name(), "ArrowPostion");
    QCOMPARE(arrows.keyCount(), 5);
    const char* keys[] = {"ArrowTop", "ArrowLeft", "ArrowRight", "ArrowBottom", "ArrowNone"};
    for (int i = 0; i < 5; ++i)
        QCOMPARE(arrows.keyToValue(keys[i]), i);
    QCOMPARE(QMetaEnum::fromType<KaWidgetData::Alignment>().valueToKey(1), "AlignCenter");
}

void tst_KaWidgetData::chaining() {
    KaWidgetData d;
    KaWidgetData& result = d.autoDismiss(false).offset(QPoint(4, 0));
    QCOMPARE(&result, &d);
    QStringList expected = fields(KaWidgetData());
    expected[2] = QStringLiteral("autoDismiss=0");
    expected[17] = QStringLiteral("offset=4,0");
    QCOMPARE(fields(d), expected);
}

void tst_KaWidgetData::everySetter_data() {
    QTest::addColumn<int>("field");
    QTest::addColumn<QString>("value");
    // Each setter changes its own field and leaves every other one alone.
    const QList<QPair<const char*, QPair<int, QString>>> rows = {
        {"alignment", {0, "alignment=2"}},
        {"arrowPostion", {1, "arrowPostion=3"}},
        {"autoDismiss", {2, "autoDismiss=0"}},
        {"dismissTimerTicks", {3, "dismissTimerTicks=7"}},
        {"dismissWithParentFocused", {4, "dismissWithParentFocused=0"}},
        {"dismissPopupOnSourceMove", {5, "dismissPopupOnSourceMove=1"}},
        {"activateOnShow", {6, "activateOnShow=1"}},
        {"fitInMainWindowGeometry", {7, "fitInMainWindowGeometry=1"}},
        {"focusSourceOnClose", {8, "focusSourceOnClose=0"}},
        {"selfReactivate", {9, "selfReactivate=0"}},
        {"showOnSourceScreen", {10, "showOnSourceScreen=1"}},
        {"shouldTakeFocus", {11, "shouldTakeFocus=0"}},
        {"skipDeepFocusCheck", {12, "skipDeepFocusCheck=1"}},
        {"shouldHaveTransparentBackground", {13, "shouldHaveTransparentBackground=0"}},
        {"moveWithSource", {14, "moveWithSource=1"}},
        {"setReverseColor", {15, "setReverseColor=1"}},
        {"fixedArrowSize", {16, "fixedArrowSize=1"}},
        {"offset", {17, "offset=-3,9"}},
        {"headerText", {18, "headerText=Heads up"}},
    };
    for (const auto& row : rows)
        QTest::newRow(row.first) << row.second.first << row.second.second;
}

void tst_KaWidgetData::everySetter() {
    QFETCH(int, field);
    QFETCH(QString, value);
    KaWidgetData d;
    switch (field) {
    case 0:
        d.alignment(KaWidgetData::AlignEnd);
        break;
    case 1:
        d.arrowPostion(KaWidgetData::ArrowBottom);
        break;
    case 2:
        d.autoDismiss(false);
        break;
    case 3:
        d.dismissTimerTicks(7);
        break;
    case 4:
        d.dismissWithParentFocused(false);
        break;
    case 5:
        d.dismissPopupOnSourceMove(true);
        break;
    case 6:
        d.activateOnShow(true);
        break;
    case 7:
        d.fitInMainWindowGeometry(true);
        break;
    case 8:
        d.focusSourceOnClose(false);
        break;
    case 9:
        d.selfReactivate(false);
        break;
    case 10:
        d.showOnSourceScreen(true);
        break;
    case 11:
        d.shouldTakeFocus(false);
        break;
    case 12:
        d.skipDeepFocusCheck(true);
        break;
    case 13:
        d.shouldHaveTransparentBackground(false);
        break;
    case 14:
        d.moveWithSource(true);
        break;
    case 15:
        d.setReverseColor(true);
        break;
    case 16:
        d.fixedArrowSize(true);
        break;
    case 17:
        d.offset(QPoint(-3, 9));
        break;
    case 18:
        d.headerText(QStringLiteral("Heads up"));
        break;
    }
    QStringList expected = fields(KaWidgetData());
    expected[field] = value;
    QCOMPARE(fields(d), expected);
}

void tst_KaWidgetData::copiesAreIndependent() {
    static_assert(std::is_nothrow_move_constructible<KaWidgetData>::value, "cheap to move");
    KaWidgetData a;
    a.headerText(QStringLiteral("one")).arrowPostion(KaWidgetData::ArrowLeft);
    KaWidgetData b = a;
    b.headerText(QStringLiteral("two")).autoDismiss(false);
    QCOMPARE(a.m_headerText, QStringLiteral("one"));
    QVERIFY(a.m_autoDismiss);
    QCOMPARE(b.m_arrowPostion, KaWidgetData::ArrowLeft);
    KaWidgetData c(std::move(b));
    QCOMPARE(c.m_headerText, QStringLiteral("two"));
    QVERIFY(!c.m_autoDismiss);
}

void tst_KaWidgetData::negativeTicksClamped() {
    QTest::ignoreMessage(QtWarningMsg, "KaWidgetData: negative dismiss timer ticks -2, using 0");
    KaWidgetData d;
    d.dismissTimerTicks(5).dismissTimerTicks(-2);
    QCOMPARE(d.m_dismissTimerTicks, 0);
}

void tst_KaWidgetData::toArrowPosition_data() {
    QTest::addColumn<int>("arrow");
    QTest::addColumn<KaWidgetData::ArrowPostion>("expected");
    QTest::newRow("up") << int(Qt::UpArrow) << KaWidgetData::ArrowTop;
    QTest::newRow("left") << int(Qt::LeftArrow) << KaWidgetData::ArrowLeft;
    QTest::newRow("right") << int(Qt::RightArrow) << KaWidgetData::ArrowRight;
    QTest::newRow("down") << int(Qt::DownArrow) << KaWidgetData::ArrowBottom;
    QTest::newRow("none") << int(Qt::NoArrow) << KaWidgetData::ArrowNone;
    QTest::newRow("out of range") << 42 << KaWidgetData::ArrowNone;
}

void tst_KaWidgetData::toArrowPosition() {
    QFETCH(int, arrow);
    QFETCH(KaWidgetData::ArrowPostion, expected);
    QCOMPARE(KaWidgetData::toArrowPosition(Qt::ArrowType(arrow)), expected);
}

QTEST_APPLESS_MAIN(tst_KaWidgetData)
#include "tst_kawidgetdata.moc"

#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "ikabutton.h"
#include "testhelpers.h"

#include <QSignalSpy>
#include <QTest>

namespace {

// Fills whatever the test puts into `record` and logs the icon flags it is told.
class TestConfig : public IKaButtonConfig {
    Q_OBJECT
public:
    using IKaButtonConfig::IKaButtonConfig;
    void fillConfig(Config& out) const override {
        out = record;
        out.acceleratorType = customValue;
    }
    void setHasLeftIcon(bool hasIcon) override { log << QStringLiteral("left:%1").arg(hasIcon); }
    void setHasRightIcon(bool hasIcon) override { log << QStringLiteral("right:%1").arg(hasIcon); }
    void setCustomValue(int value) override {
        customValue = value;
        notifyConfigChanged();
    }

    Config record;
    int customValue = 0;
    QStringList log;
};

// The smallest concrete button: applies the record as it is.
class TestButton : public IKaButton {
    Q_OBJECT
public:
    explicit TestButton(IKaButtonConfig* config, QWidget* parent = nullptr)
        : IKaButton(parent, config) {
        // IKaButton only guards its configuration; the concrete button owns it.
        if (config && !config->parent())
            config->setParent(this);
        connect(this, &IKaButton::refreshConfig, this, &TestButton::refresh);
        refresh();
    }
    int refreshes = 0;

private:
    void refresh() {
        ++refreshes;
        if (!buttonConfig())
            return;
        Config record;
        buttonConfig()->fillConfig(record);
        applyColors(record.colors, QString());
        IKaButton::refresh(record);
    }
};

} // namespace

class tst_IKaButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void leftIconTellsConfiguration() {
        auto* config = new TestConfig;
        TestButton button(config);
        QSignalSpy refreshes(&button, &IKaButton::refreshConfig);
        QSignalSpy changed(&button, &IKaButton::leftIconChanged);

        const QString icon = QStringLiteral(":/Resources/check-regular.svg");
        const QString iconOn = QStringLiteral(":/Resources/check-circle-badge-filled.svg");
        button.setLeftIcon(icon);
        QCOMPARE(button.svgIcon(), icon);
        QCOMPARE(button.leftIcon(), icon);
        // One refresh per change, not one from the configuration and one from the button.
        QCOMPARE(refreshes.count(), 1);
        QCOMPARE(changed.count(), 1);

        button.setLeftIconOn(iconOn);
        QCOMPARE(button.svgIconChecked(), iconOn);
        QCOMPARE(button.svgIcon(), icon);
        QCOMPARE(refreshes.count(), 2);

        button.setLeftIcon(QString());
        QCOMPARE(config->log, (QStringList{"left:1", "left:0"}));

        // The button paints the anchors the configuration chose.
        button.setRightIcon(icon);
        QCOMPARE(button.anchorSvgOff(), icon);
        QCOMPARE(button.anchorSvgOn(), icon);
        button.setRightIcon(QString());
        QCOMPARE(config->log, (QStringList{"left:1", "left:0", "right:1", "right:0"}));

        // The current path changes nothing.
        button.setLeftIconOn(iconOn);
        button.setRightIcon(QString());
        QCOMPARE(refreshes.count(), 5);
        QCOMPARE(config->log.size(), 4);
    }

    // The base button declares no change signals; the properties re-declared
    // here still announce each new value once.
    void basePropertiesNotify() {
        TestButton button(new TestConfig);
        // Invalid values leave css and the policies out.
        QVariantMap values{{"css", {}}, {"sizePolicy", {}}, {"focusPolicy", {}}};
        for (const char* icon : {"anchorSvgOn", "anchorSvgOff", "svgIcon", "svgIconChecked", "innerSvgIcon"})
            values.insert(QLatin1String(icon), QStringLiteral(":/Resources/check-regular.svg"));
        for (const char* set :
             {"anchorSvgColorSet", "focusRectColorSet", "svgIconColorSet", "innerSvgIconColorSet"})
            values.insert(QLatin1String(set), QStringLiteral("label-error-text"));
        BzTest::checkNotifiesOnce(button, IKaButton::staticMetaObject, values);
    }

    void recordIsApplied() {
        auto* config = new TestConfig;
        config->record.sizePolicy = QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        config->record.focusPolicy = Qt::TabFocus;
        config->record.fixedHeight = 36;
        config->record.fontToken = BzFont::Caption;
        config->record.layoutMode = 3;
        config->record.innerMetric = 17;
        TestButton button(config);

        QCOMPARE(button.sizePolicy(), config->record.sizePolicy);
        QCOMPARE(button.focusPolicy(), Qt::TabFocus);
        QCOMPARE(button.minimumHeight(), 36);
        QCOMPARE(button.maximumHeight(), 36);
        QCOMPARE(int(button.fontToken()), int(BzFont::Caption));
        QCOMPARE(button.font().pixelSize(), BzFont(BzFont::Caption).pixelSize());
        QCOMPARE(button.layoutMode(), 3);
        QCOMPARE(button.innerMetric(), 17);

        QSignalSpy layout(&button, &IKaButton::layoutModeChanged);
        QSignalSpy inner(&button, &IKaButton::innerMetricChanged);
        Q_EMIT button.refreshConfig();
        QCOMPARE(layout.count(), 0);
        QCOMPARE(inner.count(), 0);
        config->record.innerMetric = 20;
        Q_EMIT button.refreshConfig();
        QCOMPARE(inner.count(), 1);
        QCOMPARE(layout.count(), 0);

        // Height 0 frees the height again.
        config->record.fixedHeight = 0;
        Q_EMIT button.refreshConfig();
        QCOMPARE(button.minimumHeight(), 0);
        QCOMPARE(button.maximumHeight(), QWIDGETSIZE_MAX);
    }

    void identicalRecordDoesNotResolveAgain() {
        auto* config = new TestConfig;
        config->record.colors.backgroundColorSet = QStringLiteral("button-primary-background");
        TestButton button(config);
        QSignalSpy resolved(&button, &BzPushButton::cssChanged);
        Q_EMIT button.refreshConfig();
        QCOMPARE(resolved.count(), 0);
        config->record.colors.backgroundColorSet = QStringLiteral("button-secondary-background");
        Q_EMIT button.refreshConfig();
        QCOMPARE(resolved.count(), 1);
        QCOMPARE(button.getWCSS().backgroundColorSet, QStringLiteral("button-secondary-background"));
    }

    void bordersMirrorInRightToLeft() {
        auto* config = new TestConfig;
        config->record.colors.borderColorSet = QStringLiteral("button-secondary-border");
        config->record.colors.hasBorder = {{false, false, false, true}}; // left only
        TestButton button(config);
        QVERIFY(button.getWCSS().isOn(BzCSSData::BorderLeft));
        QVERIFY(!button.getWCSS().isOn(BzCSSData::BorderRight));

        button.setLayoutDirection(Qt::RightToLeft);
        QVERIFY(!button.getWCSS().isOn(BzCSSData::BorderLeft));
        QVERIFY(button.getWCSS().isOn(BzCSSData::BorderRight));
        QVERIFY(!button.getWCSS().isOn(BzCSSData::BorderTop));
    }

    void visibilitySignals() {
        QWidget window;
        TestButton button(new TestConfig, &window);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        QSignalSpy visibility(&button, &IKaButton::onVisibilityChanged);
        QSignalSpy refreshes(&button, &IKaButton::refreshConfig);
        button.hide();
        QCOMPARE(visibility.count(), 1);
        QCOMPARE(visibility.at(0).at(0).toBool(), false);
        QCOMPARE(refreshes.count(), 0);

        button.show();
        QCOMPARE(visibility.count(), 2);
        QCOMPARE(visibility.at(1).at(0).toBool(), true);
        // The program showed it: the look is re-applied.
        QCOMPARE(refreshes.count(), 1);
    }

    void acceleratorTypeGoesThroughConfiguration() {
        auto* config = new TestConfig;
        TestButton button(config);
        QSignalSpy refreshes(&button, &IKaButton::refreshConfig);
        button.applyAcceleratorType(BzPushButton::AlwaysUnderlined);
        QCOMPARE(config->customValue, int(BzPushButton::AlwaysUnderlined));
        QCOMPARE(button.getAcceleratorType(), int(BzPushButton::AlwaysUnderlined));
        QCOMPARE(refreshes.count(), 1);

        button.applyAcceleratorType(BzPushButton::AlwaysUnderlined);
        QCOMPARE(refreshes.count(), 1);
    }

    void withoutConfiguration() {
        TestButton button(nullptr);
        QSignalSpy refreshes(&button, &IKaButton::refreshConfig);
        button.setLeftIcon(QStringLiteral(":/Resources/check-regular.svg"));
        button.setRightIcon(QStringLiteral(":/Resources/check-regular.svg"));
        button.applyAcceleratorType(BzPushButton::AlwaysUnderlined);
        QCOMPARE(refreshes.count(), 0);
        QVERIFY(button.leftIcon().isEmpty());
        QVERIFY(button.svgIcon().isEmpty());
        button.onThemeChanged();
        QCOMPARE(refreshes.count(), 1);
    }
};

QTEST_MAIN(tst_IKaButton)
#include "tst_ikabutton.moc"

#include "customfocusoverlay.h"

#include <bzcolorset.h>
#include <bzthememanager.h>
#include <bzthemeutils.h>

#include <QImage>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

const std::string kOuter = "global-focus-outline";
const std::string kInner = "textinput-background";

QImage render(CustomFocusOverlay* overlay) {
    return overlay->grab().toImage().convertToFormat(QImage::Format_ARGB32);
}

QRgb colourOf(const QString& theme, const std::string& set) {
    const auto sets = BzThemeManager::instance()->theme(theme).colorSets();
    return sets.value(QString::fromStdString(set)).normal().rgba();
}

QRgb outerOf(const QString& theme) {
    return colourOf(theme, kOuter);
}

QRgb innerOf(const QString& theme) {
    return colourOf(theme, kInner);
}

} // namespace

class tst_CustomFocusOverlay : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void cleanup() {
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light"));
        QCoreApplication::processEvents();
    }

    void colorsOfEachTheme_data() {
        QTest::addColumn<QString>("theme");
        QTest::addColumn<bool>("opaque");
        // The halo itself: tst_kafocusstyle's haloAlpha; here the flag reaches it.
        QTest::newRow("light") << QStringLiteral("light") << false;
        QTest::newRow("dark, opaque") << QStringLiteral("dark") << true;
        QTest::newRow("highContrast") << QStringLiteral("highContrast") << false;
    }

    void colorsOfEachTheme() {
        QFETCH(QString, theme);
        QFETCH(bool, opaque);
        QVERIFY(BzThemeManager::instance()->setCurrentTheme(theme));

        CustomFocusOverlay overlay(kOuter, kInner, opaque);
        QCOMPARE(overlay.objectName(), QStringLiteral("CustomFocusOverlay"));
        overlay.resize(60, 30);
        const QImage image = render(&overlay);
        const QRgb outer = outerOf(theme);
        const QRgb inner = innerOf(theme);
        // The normal colours of the two sets differ in every theme, so the
        // bands tell them apart.
        QVERIFY(outer != inner);
        QCOMPARE(image.pixel(2, 15), outer);
        QCOMPARE(image.pixel(4, 15), inner);
        QCOMPARE(qAlpha(image.pixel(0, 15)), opaque ? 255 : 77);
        QCOMPARE(qAlpha(image.pixel(30, 15)), 0);
    }

    void themeChangeReresolves() {
        QWidget window;
        window.resize(200, 100);
        auto* overlay = new CustomFocusOverlay(kOuter, kInner, false, &window);
        overlay->setGeometry(10, 10, 60, 30);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(render(overlay).pixel(2, 15), outerOf(QStringLiteral("light")));

        // The theme switch queues onThemeChanged() on every widget.
        QVERIFY(BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark")));
        QTRY_COMPARE(render(overlay).pixel(2, 15), outerOf(QStringLiteral("dark")));
        QCOMPARE(render(overlay).pixel(4, 15), innerOf(QStringLiteral("dark")));

        // Switching without the refresh leaves the colours until told.
        QVERIFY(BzThemeManager::instance()->setCurrentTheme(QStringLiteral("highContrast"),
                                                            BzThemeManager::DataOnly));
        QCoreApplication::processEvents();
        QCOMPARE(render(overlay).pixel(2, 15), outerOf(QStringLiteral("dark")));
        overlay->onThemeChanged();
        QCOMPARE(render(overlay).pixel(2, 15), outerOf(QStringLiteral("highContrast")));
        QCOMPARE(render(overlay).pixel(4, 15), innerOf(QStringLiteral("highContrast")));
    }

    void followsThemeTypeOfParent() {
        QWidget lightParent;
        QWidget darkParent;
        darkParent.setProperty("themeType", QStringLiteral("dark"));

        auto* overlay = new CustomFocusOverlay(kOuter, kInner, false, &darkParent);
        overlay->resize(60, 30);
        QCOMPARE(render(overlay).pixel(2, 15), outerOf(QStringLiteral("dark")));
        QCOMPARE(render(overlay).pixel(4, 15), innerOf(QStringLiteral("dark")));

        overlay->setParent(&lightParent);
        QCOMPARE(render(overlay).pixel(2, 15), outerOf(QStringLiteral("light")));
        QCOMPARE(render(overlay).pixel(4, 15), innerOf(QStringLiteral("light")));
    }

    void radiusAndCornerMask_data() {
        QTest::addColumn<double>("radius");
        QTest::addColumn<int>("mask");
        QTest::addColumn<bool>("topLeftPainted");
        QTest::addColumn<bool>("bottomRightPainted");

        QTest::newRow("square") << 0.0 << 0 << true << true;
        // Every corner's bit: tst_kafocusstyle's cornerMask.
        QTest::newRow("rounded, top-left square") << 15.0 << 1 << true << false;
    }

    void radiusAndCornerMask() {
        QFETCH(double, radius);
        QFETCH(int, mask);
        QFETCH(bool, topLeftPainted);
        QFETCH(bool, bottomRightPainted);

        CustomFocusOverlay overlay(kOuter, kInner, false);
        overlay.resize(80, 40);
        overlay.setRadius(radius);
        overlay.setRectangularCornerMask(static_cast<unsigned char>(mask));
        QCOMPARE(overlay.getRadius(), radius);
        const QImage image = render(&overlay);
        QCOMPARE(qAlpha(image.pixel(1, 1)) > 0, topLeftPainted);
        QCOMPARE(qAlpha(image.pixel(78, 38)) > 0, bottomRightPainted);
        QVERIFY(qAlpha(image.pixel(40, 2)) > 0);
    }

    void mouseGoesThrough() {
        QWidget window;
        window.resize(200, 100);
        auto* button = new QPushButton(QStringLiteral("Below"), &window);
        button->setGeometry(20, 20, 100, 40);
        auto* overlay = new CustomFocusOverlay(kOuter, kInner, false, &window);
        overlay->setGeometry(button->geometry().marginsAdded(QMargins(5, 5, 5, 5)));
        overlay->show();
        overlay->raise();
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.childAt(button->geometry().center()), button);

        QSignalSpy clicked(button, &QPushButton::clicked);
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, button->geometry().center());
        QCOMPARE(clicked.count(), 1);
        // Never takes focus either.
        QVERIFY(!overlay->hasFocus());
        QCOMPARE(overlay->focusPolicy(), Qt::NoFocus);
    }
};

QTEST_MAIN(tst_CustomFocusOverlay)
#include "tst_customfocusoverlay.moc"

#include "bzthememanager.h"
#include "bzthemeutils.h"
#include "katitlebarbutton.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

namespace {

QImage paint(QWidget& widget) {
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QString name(QWidget* widget) {
    QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(widget);
    return iface ? iface->text(QAccessible::Name) : QString();
}

using Config = KaTitleBarButtonConfig;

} // namespace

class tst_KaTitleBarButton : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }
    void minimiseActsOnWindow();
    void maximiseToggles();
    void followsOutsideStateChanges();
    void closeActsOnWindow();
    void targetWindow();
    void colourSets_data();
    void colourSets();
    void geometryBySize_data();
    void geometryBySize();
    void glyphs();
    void neverTakesFocus();
};

void tst_KaTitleBarButton::minimiseActsOnWindow() {
    QWidget window;
    auto* button = new KaTitleBarButton(Config::Minimize, &window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(name(button), QStringLiteral("Minimize"));
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_VERIFY(window.isMinimized());
}

void tst_KaTitleBarButton::maximiseToggles() {
    QWidget window;
    auto* button = new KaTitleBarButton(Config::Maximize, &window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(button->glyph(), Config::MaximizeGlyph);
    QCOMPARE(name(button), QStringLiteral("Maximize"));

    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_VERIFY(window.isMaximized());
    QCOMPARE(button->glyph(), Config::RestoreGlyph);
    QCOMPARE(name(button), QStringLiteral("Restore"));
    QCOMPARE(button->toolTip(), QStringLiteral("Restore"));

    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_VERIFY(!window.isMaximized());
    QCOMPARE(button->glyph(), Config::MaximizeGlyph);
}

void tst_KaTitleBarButton::followsOutsideStateChanges() {
    QWidget window;
    auto* button = new KaTitleBarButton(Config::Maximize, &window);
    window.showMaximized();
    QTRY_COMPARE(button->glyph(), Config::RestoreGlyph);
    window.showNormal();
    QTRY_COMPARE(button->glyph(), Config::MaximizeGlyph);

    // Moved into another window, it follows that one.
    QWidget other;
    button->setParent(&other);
    other.showMaximized();
    QTRY_COMPARE(button->glyph(), Config::RestoreGlyph);
    window.showMaximized();
    other.showNormal();
    QTRY_COMPARE(button->glyph(), Config::MaximizeGlyph);
}

void tst_KaTitleBarButton::closeActsOnWindow() {
    QWidget window;
    auto* button = new KaTitleBarButton(&window);
    QCOMPARE(button->type(), Config::Close);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_VERIFY(!window.isVisible());
}

void tst_KaTitleBarButton::targetWindow() {
    QWidget window;
    QWidget preview;
    auto* button = new KaTitleBarButton(Config::Maximize, &window);
    QSignalSpy spy(button, &KaTitleBarButton::targetWindowChanged);
    button->setTargetWindow(&preview);
    button->setTargetWindow(&preview);
    QCOMPARE(spy.count(), 1);
    window.show();
    preview.show();
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_VERIFY(preview.isMaximized());
    QVERIFY(!window.isMaximized());
    QCOMPARE(button->glyph(), Config::RestoreGlyph);
    button->setTargetWindow(nullptr);
    QCOMPARE(button->targetWindow(), &window);
    QCOMPARE(button->glyph(), Config::MaximizeGlyph);
}

void tst_KaTitleBarButton::colourSets_data() {
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("background");
    QTest::addColumn<QString>("text");
    const QString maxMin = QStringLiteral("globalHeader-maxMinButton-");
    const QString close = QStringLiteral("globalHeader-closeButton-");
    QTest::newRow("minimise") << int(Config::Minimize) << maxMin + "background" << maxMin + "text";
    QTest::newRow("maximise") << int(Config::Maximize) << maxMin + "background" << maxMin + "text";
    QTest::newRow("close") << int(Config::Close) << close + "background" << close + "text";
}

// Transparent at rest, the face of the type's set under the pointer.
void tst_KaTitleBarButton::colourSets() {
    QFETCH(int, type);
    QFETCH(QString, background);
    QFETCH(QString, text);
    KaTitleBarButton button{Config::Type(type)};
    QCOMPARE(button.getWCSS().backgroundColorSet, background);
    QCOMPARE(button.getWCSS().textColorSet, text);
    button.resize(40, 32);
    QCOMPARE(paint(button).pixelColor(1, 1).alpha(), 0);
    button.setAttribute(Qt::WA_UnderMouse);
    // Square corners: the corner pixel is face too.
    QCOMPARE(paint(button).pixelColor(0, 0).rgba(), BzThemeUtils::getColorSet(background).hovered().rgba());
}

void tst_KaTitleBarButton::geometryBySize_data() {
    QTest::addColumn<int>("size");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("Large") << int(KaButtonEnum::Large) << QSize(46, 40);
    QTest::newRow("Normal") << int(KaButtonEnum::Normal) << QSize(40, 32);
    QTest::newRow("Small") << int(KaButtonEnum::Small) << QSize(32, 28);
}

void tst_KaTitleBarButton::geometryBySize() {
    QFETCH(int, size);
    QFETCH(QSize, expected);
    KaTitleBarButton button(Config::Minimize);
    button.setSize(KaButtonEnum::Size(size));
    QCOMPARE(button.minimumSize(), expected);
    QCOMPARE(button.maximumSize(), expected);
}

// Each glyph in the text colour: a line, a square, two squares, a cross.
void tst_KaTitleBarButton::glyphs() {
    const QRgb ink =
        BzThemeUtils::getColorSet(QStringLiteral("globalHeader-maxMinButton-text")).normal().rgb();
    KaTitleBarButton button(Config::Minimize);
    button.resize(40, 32);
    // A 10 px glyph box at (15, 11).
    QImage image = paint(button);
    QCOMPARE(image.pixel(15, 16), ink);
    QCOMPARE(image.pixel(24, 16), ink);
    QCOMPARE(qAlpha(image.pixel(20, 11)), 0);

    button.setType(Config::Maximize);
    image = paint(button);
    QCOMPARE(image.pixel(15, 11), ink);
    QCOMPARE(image.pixel(24, 20), ink);
    QCOMPARE(qAlpha(image.pixel(20, 16)), 0);

    QWidget window;
    auto* restore = new KaTitleBarButton(Config::Maximize, &window);
    window.showMaximized();
    QTRY_COMPARE(restore->glyph(), Config::RestoreGlyph);
    restore->resize(40, 32);
    image = paint(*restore);
    // Front window's top-left corner, the back window's top-right one.
    QCOMPARE(image.pixel(15, 13), ink);
    QCOMPARE(image.pixel(24, 11), ink);
    QCOMPARE(qAlpha(image.pixel(15, 11)), 0);
}

void tst_KaTitleBarButton::neverTakesFocus() {
    KaTitleBarButton button(Config::Close);
    QCOMPARE(button.focusPolicy(), Qt::NoFocus);
}

QTEST_MAIN(tst_KaTitleBarButton)
#include "tst_katitlebarbutton.moc"

#include "focusringtest.h"
#include "kacolortokenutils.h"
#include "kamultiplelinklabel.h"

#include <accessibilityrecorder.h>
#include <bzthememanager.h>
#include <bzthemeutils.h>
#include <testhelpers.h>

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QStyleFactory>
#include <QTest>
#include <QVBoxLayout>

namespace {

const QString kText = QStringLiteral("By joining you accept the <a href=\"terms\">Terms</a>, the "
                                     "<a href=\"privacy\">Privacy <b>notice</b></a> and the "
                                     "<a href=\"rules\">House rules</a>.");

// A field, the label and a field, in tab order.
struct Form {
    QWidget window;
    QLineEdit* before = new QLineEdit(&window);
    KaMultipleLinkLabel* label = new KaMultipleLinkLabel(kText, &window);
    QLineEdit* after = new QLineEdit(&window);
    Form() {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(before);
        layout->addWidget(label);
        layout->addWidget(after);
        window.show();
    }
};

QColor linkColour(BzThemeUtils::AppThemeType type) {
    return BzThemeUtils::getColorSet(KaColorTokenUtils::tokenToString(Karvox::hyperlink_accent_text), type)
        .normal();
}

} // namespace

class tst_KaMultipleLinkLabel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }
    void cleanup() {
        qApp->setProperty("isKeyboardFocus", QVariant());
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    }

    void links() {
        KaMultipleLinkLabel label;
        QCOMPARE(label.focusPolicy(), Qt::NoFocus);
        QSignalSpy spy(&label, &KaMultipleLinkLabel::textChanged);
        QVERIFY(label.setProperty("text", kText));
        label.setText(kText);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(label.text(), kText);
        QCOMPARE(label.linkCount(), 3);
        QCOMPARE(label.linkText(1), QStringLiteral("Privacy notice"));
        QCOMPARE(label.linkHref(2), QStringLiteral("rules"));
        QCOMPARE(label.linkHref(3), QString());
        QCOMPARE(label.focusPolicy(), Qt::StrongFocus);
        label.resize(label.sizeHint());
        // Links lie left to right on one line, inside the label.
        QVERIFY(label.rect().contains(label.linkRect(2)));
        QVERIFY(label.linkRect(0).right() < label.linkRect(1).left());
        QCOMPARE(label.linkAt(label.linkRect(1).center()), 1);
        QCOMPARE(label.linkAt(QPoint(1, 1)), -1);
        // Fewer links: the current one stays in range.
        label.setCurrentLink(2);
        label.setText(QStringLiteral("Only <a href=\"one\">one</a> link"));
        QCOMPARE(label.currentLink(), 0);
        label.setText(QStringLiteral("No links"));
        QCOMPARE(label.currentLink(), -1);
        QCOMPARE(label.focusPolicy(), Qt::NoFocus);
        label.activateLink(0); // nothing to activate, nothing happens
    }

    void keyboard_data() {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Space") << int(Qt::Key_Space);
    }

    void keyboard() {
        QFETCH(int, key);
        Form form;
        QVERIFY(QTest::qWaitForWindowExposed(&form.window));
        form.before->setFocus();
        QSignalSpy activated(form.label, &QLabel::linkActivated);
        QStringList hrefs;
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), form.label);
            QCOMPARE(form.label->currentLink(), i);
            QTest::keyClick(form.label, Qt::Key(key));
            hrefs << activated.last().at(0).toString();
        }
        QCOMPARE(hrefs,
                 (QStringList{QStringLiteral("terms"), QStringLiteral("privacy"), QStringLiteral("rules")}));
        QTest::keyClick(form.label, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), form.after);
        // Shift+Tab comes back in at the last link and walks backwards.
        QTest::keyClick(form.after, Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), form.label);
        QCOMPARE(form.label->currentLink(), 2);
        QTest::keyClick(form.label, Qt::Key_Backtab);
        QCOMPARE(form.label->currentLink(), 1);
        QTest::keyClick(form.label, Qt::Key_Backtab);
        QTest::keyClick(form.label, Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), form.before);
        QCOMPARE(activated.count(), 3);
    }

    void mouse() {
        Form form;
        QVERIFY(QTest::qWaitForWindowExposed(&form.window));
        QSignalSpy activated(form.label, &QLabel::linkActivated);
        QSignalSpy hovered(form.label, &QLabel::linkHovered);
        const QPoint privacy = form.label->linkRect(1).center();
        QTest::mouseMove(form.label, privacy);
        QTRY_COMPARE(hovered.count(), 1);
        QCOMPARE(hovered.last().at(0).toString(), QStringLiteral("privacy"));
        QTest::mouseClick(form.label, Qt::LeftButton, {}, privacy);
        QCOMPARE(activated.count(), 1);
        QCOMPARE(activated.last().at(0).toString(), QStringLiteral("privacy"));
        QCOMPARE(form.label->currentLink(), 1);
        // Pressed on a link, released elsewhere: nothing.
        QTest::mousePress(form.label, Qt::LeftButton, {}, privacy);
        QTest::mouseRelease(form.label, Qt::LeftButton, {}, QPoint(1, 1));
        QTest::mouseClick(form.label, Qt::LeftButton, {}, QPoint(1, 1));
        QCOMPARE(activated.count(), 1);
    }

    // Tabbing to the second link announces it, focuses its accessible child
    // and rings it.
    void keyboardFocusOnLink() {
        FocusRingTest::installStyle();
        qApp->setProperty("isKeyboardFocus", true);
        Form form;
        QVERIFY(QTest::qWaitForWindowExposed(&form.window));
        const AccessibilityRecorder::RecordingScope recording;
        form.before->setFocus();
        QTest::keyClick(form.before, Qt::Key_Tab);
        QTest::keyClick(form.label, Qt::Key_Tab);
        QCOMPARE(AccessibilityRecorder::announcements(form.label),
                 (QStringList{QStringLiteral("Terms, link 1 of 3"),
                              QStringLiteral("Privacy notice, link 2 of 3")}));
        // The ring goes around the second link, 2 px out.
        const QRect linkRect = form.label->linkRect(1);
        const QRect ring(form.label->mapTo(&form.window, linkRect.topLeft()) - QPoint(2, 2),
                         linkRect.size() + QSize(4, 4));
        QTRY_VERIFY(FocusRingTest::visibleRing(form.window) &&
                    FocusRingTest::visibleRing(form.window)->geometry() == ring);

        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(form.label);
        QVERIFY(iface);
        QVERIFY(iface->text(QAccessible::Name).startsWith(QStringLiteral("By joining you accept the Terms")));
        QCOMPARE(iface->childCount(), 3);
        QAccessibleInterface* link = iface->child(1);
        QVERIFY(link && link->isValid());
        QCOMPARE(link->role(), QAccessible::Link);
        QCOMPARE(link->text(QAccessible::Name), QStringLiteral("Privacy notice"));
        QCOMPARE(link->text(QAccessible::Description), QStringLiteral("link 2 of 3"));
        QVERIFY(link->state().focused && link->state().focusable);
        QVERIFY(!iface->child(0)->state().focused);
        QCOMPARE(link->parent(), iface);
        QCOMPARE(iface->indexOfChild(link), 1);
        QCOMPARE(iface->child(1), link);
        QCOMPARE(iface->childAt(link->rect().center().x(), link->rect().center().y()), link);
        // Screen readers can activate a link too.
        QSignalSpy activated(form.label, &QLabel::linkActivated);
        link->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(activated.count(), 1);
        QCOMPARE(activated.last().at(0).toString(), QStringLiteral("privacy"));
        // A link that went away is no longer valid.
        form.label->setText(QStringLiteral("<a href=\"x\">x</a>"));
        QVERIFY(!link->isValid());
        QCOMPARE(iface->childCount(), 1);
    }

    void followsTheme() {
        KaMultipleLinkLabel label(kText);
        label.resize(label.sizeHint());
        const QRect link = label.linkRect(0);
        QCOMPARE(BzTest::strongestIn(BzTest::paint(label), link).rgb(),
                 linkColour(BzThemeUtils::Light).rgb());
        const QRect text(0, 0, link.left() - 2, label.height());
        QCOMPARE(BzTest::strongestIn(BzTest::paint(label), text).rgb(),
                 BzTest::set("label-primary-text").normal().rgb());
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("dark"));
        QCOMPARE(BzTest::strongestIn(BzTest::paint(label), link).rgb(), linkColour(BzThemeUtils::Dark).rgb());
        QCOMPARE(BzTest::strongestIn(BzTest::paint(label), text).rgb(),
                 BzThemeUtils::getColorSet("label-primary-text", BzThemeUtils::Dark).normal().rgb());
    }
};

QTEST_MAIN(tst_KaMultipleLinkLabel)
#include "tst_kamultiplelinklabel.moc"

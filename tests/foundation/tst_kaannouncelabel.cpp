#include "kaannouncelabel.h"

#include <accessibilityrecorder.h>
#include <bzthememanager.h>
#include <bzthemeutils.h>
#include <testhelpers.h>

#include <QAccessible>
#include <QTest>

#include <utility>

class tst_KaAnnounceLabel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { BzThemeManager::instance()->setCurrentTheme(QStringLiteral("light")); }

    void announcesChanges_data() {
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QStringList>("spoken");
        QTest::addColumn<bool>("shown");
        QTest::newRow("one change") << QStringList{QStringLiteral("Saved")}
                                    << QStringList{QStringLiteral("Saved")} << true;
        QTest::newRow("same text twice") << QStringList{QStringLiteral("Saved"), QStringLiteral("Saved")}
                                         << QStringList{QStringLiteral("Saved")} << true;
        QTest::newRow("cleared") << QStringList{QStringLiteral("Saved"), QString(), QStringLiteral(" ")}
                                 << QStringList{QStringLiteral("Saved")} << true;
        QTest::newRow("each change") << QStringList{QStringLiteral("1 result"), QStringLiteral("2 results")}
                                     << QStringList{QStringLiteral("1 result"), QStringLiteral("2 results")}
                                     << true;
        QTest::newRow("rich text is read as text") << QStringList{QStringLiteral("<b>3</b> results")}
                                                   << QStringList{QStringLiteral("3 results")} << true;
        QTest::newRow("hidden") << QStringList{QStringLiteral("Saved")} << QStringList() << false;
    }

    void announcesChanges() {
        QFETCH(QStringList, texts);
        QFETCH(QStringList, spoken);
        QFETCH(bool, shown);
        KaAnnounceLabel label;
        label.setVisible(shown);
        const AccessibilityRecorder::RecordingScope recording;
        QSignalSpy changed(&label, &KaAnnounceLabel::textChanged);
        for (const QString& text : texts)
            label.setText(text);
        QCOMPARE(AccessibilityRecorder::announcements(&label), spoken);
        QCOMPARE(label.text(), texts.last());
        int changes = 0;
        QString previous;
        for (const QString& text : texts)
            changes += std::exchange(previous, text) != text;
        QCOMPARE(changed.count(), changes);
    }

    void designerTextProperty() {
        KaAnnounceLabel label;
        label.show();
        const AccessibilityRecorder::RecordingScope recording;
        QVERIFY(label.setProperty("text", QStringLiteral("Text")));
        QCOMPARE(label.text(), QStringLiteral("Text"));
        QCOMPARE(AccessibilityRecorder::announcements(&label), QStringList{QStringLiteral("Text")});
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(&label);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Text"));
        QCOMPARE(iface->role(), QAccessible::StaticText);
    }

    void followsTheme() {
        KaAnnounceLabel label;
        label.setText(QStringLiteral("HHH"));
        QCOMPARE(BzTest::textColour(label).rgb(), BzTest::set("label-primary-text").normal().rgb());
        BzThemeManager::instance()->setCurrentTheme(QStringLiteral("highContrast"));
        QCOMPARE(BzTest::textColour(label).rgb(),
                 BzThemeUtils::getColorSet("label-primary-text", BzThemeUtils::HighContrast).normal().rgb());
    }
};

QTEST_MAIN(tst_KaAnnounceLabel)
#include "tst_kaannouncelabel.moc"

#include "formxml.h"

#include <QBuffer>
#include <QDir>
#include <QPluginLoader>
#include <QUiLoader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <memory>

namespace {
QStringList g_warnings;
void collectWarnings(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtWarningMsg)
        g_warnings.append(message);
}
} // namespace

// The Designer plugin as Designer and QUiLoader see it: loaded from the
// build tree, every widget placed from its own form fragment.
class TestKarvexPluginCollection : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
        QCOMPARE(m_loader.metaData().value(QLatin1String("IID")).toString(),
                 QStringLiteral("org.qt-project.Qt.QDesignerKarvexCollectionInterface"));
        auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(m_loader.instance());
        QVERIFY(collection);
        m_plugins = collection->customWidgets();
    }

    void collectionOffersTheWidgetsInOrder() {
        const QStringList expected =
            QStringLiteral("KaRoundButton KaPillButton KaIconButton KaDualComboButton KaDualIconButton "
                           "KaEmojiPushButton KaTextField KaTextFieldWithHint KaPinTextField KaLabel "
                           "KaEmojiLabel KaAnnounceLabel KaGifLabel KaMultipleLinkLabel KaSvgLabel "
                           "KaCheckBox KaRadioButton KaComboBox KaTabView KaAvatarView "
                           "KaDiscoverabilityWidget KaRoundBadgeButton")
                .split(QLatin1Char(' '));
        QStringList names;
        for (auto* plugin : m_plugins)
            names.append(plugin->name());
        QCOMPARE(names, expected);

        QUiLoader loader;
        loader.addPluginPath(QFileInfo(m_loader.fileName()).absolutePath());
        const QStringList available = loader.availableWidgets();
        for (const QString& name : expected)
            QVERIFY2(available.contains(name), qPrintable(name));
    }

    // Runs before anything else could have initialised the plugins.
    void pluginInterface_data() { pluginRows(); }
    void pluginInterface() {
        QFETCH(int, index);
        auto* p = m_plugins.at(index);
        QVERIFY(!p->isInitialized());
        const QString fragment = p->domXml();
        p->initialize(nullptr);
        QVERIFY(p->isInitialized());
        p->initialize(nullptr);
        QVERIFY(p->isInitialized());
        QCOMPARE(p->domXml(), fragment);

        QCOMPARE(p->group(), QStringLiteral("Karvex"));
        QVERIFY(!p->isContainer());
        QVERIFY(p->icon().isNull());
        QVERIFY(p->toolTip().isEmpty() && p->whatsThis().isEmpty() && p->codeTemplate().isEmpty());
        // Code generated from a form includes this header: it must exist.
        const QDir src(QStringLiteral(KARVEX_SOURCE_DIR "/src"));
        QStringList found;
        for (const QString& dir : src.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            found += QDir(src.filePath(dir)).entryList({p->includeFile()}, QDir::Files, QDir::NoSort);
        QCOMPARE(found, QStringList{p->includeFile()});

        std::unique_ptr<QWidget> widget(p->createWidget(nullptr));
        QVERIFY(widget);
        QVERIFY(!widget->parentWidget());
        QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), p->name());
        QWidget parent;
        QCOMPARE(p->createWidget(&parent)->parentWidget(), &parent);
    }

    void loaderBuildsFragment_data() { pluginRows(); }
    void loaderBuildsFragment() {
        QFETCH(int, index);
        auto* p = m_plugins.at(index);
        const Form form = readForm(p->domXml());
        QVERIFY2(form.error.isEmpty(), qPrintable(form.error));
        QCOMPARE(form.rootName, QStringLiteral("ui"));
        QCOMPARE(form.language, QStringLiteral("c++"));
        QCOMPARE(form.widgets.size(), 1);
        QCOMPARE(form.customClasses, QStringList{p->name()});
        const FormWidget expected = form.widgets.first();
        QCOMPARE(expected.className, p->name());
        QVERIFY(!expected.objectName.isEmpty());

        auto widget = load(p->domXml());
        QVERIFY(widget);
        QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), p->name());
        QCOMPARE(widget->objectName(), expected.objectName);
        verifyFormProperties(widget.get(), expected);
    }

    // Keys other than the widgets' defaults, so that a loader that sets nothing
    // fails; and keys the enumerations lack, which must leave the default.
    void loaderEnumKeys_data() {
        QTest::addColumn<QString>("className");
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<bool>("isKey");
        const auto row = [](const char* name, const char* cls, const char* property, const char* key,
                            bool isKey) {
            QTest::newRow(name) << QString::fromLatin1(cls) << QByteArray(property) << QByteArray(key)
                                << isKey;
        };
        row("pill style", "KaPillButton", "style", "KaButtonEnum::Ghost", true);
        row("icon type", "KaIconButton", "type", "KaIconButtonEnum::Dismiss", true);
        row("dual icon style", "KaDualIconButton", "style", "KaDualButtonEnum::InvertedVertical", true);
        row("text field style", "KaTextField", "style", "KaTextFieldEnum::Password", true);
        row("pin size", "KaPinTextField", "size", "KaTextFieldEnum::Large", true);
        row("badge button style", "KaRoundBadgeButton", "style", "KaButtonEnum::Secondary", true);
        row("unknown pill size", "KaPillButton", "size", "KaButtonEnum::Gigantic", false);
        row("unknown icon type", "KaIconButton", "type", "KaIconButtonEnum::Kettle", false);
        row("unknown text field style", "KaTextField", "style", "KaTextFieldEnum::Braille", false);
        row("unknown pin size", "KaPinTextField", "size", "KaTextFieldEnum::Huge", false);
    }

    void loaderEnumKeys() {
        QFETCH(QString, className);
        QFETCH(QByteArray, property);
        QFETCH(QByteArray, key);
        QFETCH(bool, isKey);
        // The tool tip shows that the rest of the form applies either way.
        const QString xml = QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"w\">"
                                           "<property name=\"%2\"><enum>%3</enum></property>"
                                           "<property name=\"toolTip\"><string>tip</string></property>"
                                           "</widget></ui>")
                                .arg(className, QLatin1String(property), QLatin1String(key));
        g_warnings.clear();
        const QtMessageHandler previous = qInstallMessageHandler(collectWarnings);
        auto widget = load(xml);
        auto fresh = load(
            QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"w\"/></ui>").arg(className));
        qInstallMessageHandler(previous);
        QVERIFY(widget && fresh);
        QCOMPARE(widget->toolTip(), QStringLiteral("tip"));

        const QMetaProperty meta =
            widget->metaObject()->property(widget->metaObject()->indexOfProperty(property.constData()));
        if (isKey) {
            QVERIFY2(g_warnings.isEmpty(), qPrintable(g_warnings.join(QLatin1Char('\n'))));
            QVERIFY(meta.read(fresh.get()) != meta.read(widget.get()));
            QCOMPARE(meta.read(widget.get()).toInt(), meta.enumerator().keyToValue(key.constData()));
        } else {
            // Qt 6.4's loader hands the widget -1 without a word; the widget
            // refuses it and says so.
            QVERIFY(!g_warnings.isEmpty());
            QCOMPARE(meta.read(widget.get()), meta.read(fresh.get()));
        }
    }

private:
    void pluginRows() {
        QTest::addColumn<int>("index");
        for (int i = 0; i < m_plugins.size(); ++i)
            QTest::newRow(qPrintable(m_plugins.at(i)->name())) << i;
    }

    std::unique_ptr<QWidget> load(const QString& xml) {
        QUiLoader loader;
        loader.addPluginPath(QFileInfo(m_loader.fileName()).absolutePath());
        QByteArray bytes = xml.toUtf8();
        QBuffer buffer(&bytes);
        std::unique_ptr<QWidget> widget(loader.load(&buffer));
        if (!widget)
            qWarning() << loader.errorString();
        return widget;
    }

    QPluginLoader m_loader{QStringLiteral(KARVEX_DESIGNER_PLUGIN_FILE)};
    QList<QDesignerCustomWidgetInterface*> m_plugins;
};

QTEST_MAIN(TestKarvexPluginCollection)
#include "tst_karvexplugincollection.moc"

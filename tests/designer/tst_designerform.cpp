#include "formxml.h"
#include "ui_allwidgets.h"

#include <QFile>
#include <QPluginLoader>
#include <QTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

// A form with every widget of the Designer plugin, compiled by uic into
// this program: the generated code builds, shows and configures them.
class TestDesignerForm : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        QFile file(QStringLiteral(KARVEX_ALLWIDGETS_UI));
        QVERIFY(file.open(QIODevice::ReadOnly));
        m_form = readForm(QString::fromUtf8(file.readAll()));
        QVERIFY2(m_form.error.isEmpty(), qPrintable(m_form.error));

        m_ui.setupUi(&m_host);
        m_host.show();
        QVERIFY(QTest::qWaitForWindowExposed(&m_host));
    }

    void formHasEveryPluginWidget() {
        QPluginLoader loader(QStringLiteral(KARVEX_DESIGNER_PLUGIN_FILE));
        auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
        QVERIFY2(collection, qPrintable(loader.errorString()));
        QStringList inForm;
        for (const FormWidget& widget : std::as_const(m_form.widgets))
            inForm.append(widget.className);
        const auto plugins = collection->customWidgets();
        QVERIFY(!plugins.isEmpty());
        for (auto* plugin : plugins)
            QVERIFY2(inForm.contains(plugin->name()), qPrintable(plugin->name()));
    }

    void widgetIsBuilt_data() {
        QTest::addColumn<int>("index");
        for (int i = 0; i < m_form.widgets.size(); ++i) {
            if (m_form.widgets.at(i).className.startsWith(QLatin1String("Ka")))
                QTest::newRow(qPrintable(m_form.widgets.at(i).objectName)) << i;
        }
    }

    void widgetIsBuilt() {
        QFETCH(int, index);
        const FormWidget& expected = m_form.widgets.at(index);
        auto* widget = m_host.findChild<QWidget*>(expected.objectName);
        QVERIFY(widget);
        QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), expected.className);
        QVERIFY(widget->isVisible());

        verifyFormProperties(widget, expected);
    }

private:
    Form m_form;
    QWidget m_host;
    Ui::AllWidgets m_ui;
};

QTEST_MAIN(TestDesignerForm)
#include "tst_designerform.moc"

#pragma once

#include <QDomDocument>
#include <QList>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QPair>
#include <QString>
#include <QTest>
#include <QWidget>

// What a form says about its widgets, read independently of QUiLoader and
// uic so that the tests can hold their results against it.
struct FormWidget {
    QString className;
    QString objectName;
    // Enumeration properties: name and key ("KaButtonEnum::Primary").
    QList<QPair<QByteArray, QByteArray>> enums;
    // Text properties: name and string.
    QList<QPair<QByteArray, QString>> strings;
};

struct Form {
    QString rootName;
    QString language;
    QList<FormWidget> widgets;
    // Class names of the customwidgets entries.
    QStringList customClasses;
    QString error;
};

inline Form readForm(const QString& xml) {
    Form form;
    QDomDocument document;
    if (!document.setContent(xml, &form.error))
        return form;
    const QDomElement root = document.documentElement();
    form.rootName = root.tagName();
    form.language = root.attribute(QStringLiteral("language"));
    const QDomNodeList widgets = root.elementsByTagName(QStringLiteral("widget"));
    for (int i = 0; i < widgets.size(); ++i) {
        const QDomElement element = widgets.at(i).toElement();
        FormWidget widget{
            element.attribute(QStringLiteral("class")), element.attribute(QStringLiteral("name")), {}, {}};
        // Only the widget's own properties, not those of combo box items.
        for (QDomElement property = element.firstChildElement(QStringLiteral("property")); !property.isNull();
             property = property.nextSiblingElement(QStringLiteral("property"))) {
            const QByteArray name = property.attribute(QStringLiteral("name")).toLatin1();
            const QDomElement value = property.firstChildElement();
            if (value.tagName() == QLatin1String("enum"))
                widget.enums.append({name, value.text().toLatin1()});
            else if (value.tagName() == QLatin1String("string"))
                widget.strings.append({name, value.text()});
        }
        form.widgets.append(widget);
    }
    const QDomNodeList custom = root.elementsByTagName(QStringLiteral("customwidget"));
    for (int i = 0; i < custom.size(); ++i)
        form.customClasses.append(custom.at(i).firstChildElement(QStringLiteral("class")).text());
    return form;
}

// Checks that `widget` holds what `expected` sets: enumeration properties
// by key through the meta-object, text properties by value.
inline void verifyFormProperties(const QWidget* widget, const FormWidget& expected) {
    const QMetaObject* meta = widget->metaObject();
    for (const auto& [name, key] : expected.enums) {
        const QMetaProperty property = meta->property(meta->indexOfProperty(name.constData()));
        QVERIFY2(property.isEnumType(), name.constData());
        bool ok = false;
        const int value = property.enumerator().keyToValue(key.constData(), &ok);
        QVERIFY2(ok, key.constData());
        QCOMPARE(property.read(widget).toInt(), value);
    }
    for (const auto& [name, text] : expected.strings)
        QCOMPARE(widget->property(name.constData()).toString(), text);
}

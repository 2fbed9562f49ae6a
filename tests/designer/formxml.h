#pragma once

#include <QList>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QPair>
#include <QString>
#include <QTest>
#include <QWidget>
#include <QXmlStreamReader>

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
    QXmlStreamReader reader(xml);
    // Indices: appending may move the widgets.
    QList<int> open;
    QByteArray property;
    bool inCustomWidget = false;
    QStringList elements;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            const auto name = reader.name();
            // Only the widget's own properties, not those of combo box items.
            const bool ownProperty = elements.size() >= 2 &&
                                     elements.at(elements.size() - 2) == QLatin1String("widget") &&
                                     elements.last() == QLatin1String("property");
            elements.append(name.toString());
            if (form.rootName.isEmpty()) {
                form.rootName = name.toString();
                form.language = reader.attributes().value(QLatin1String("language")).toString();
            } else if (name == QLatin1String("widget")) {
                form.widgets.append({reader.attributes().value(QLatin1String("class")).toString(),
                                     reader.attributes().value(QLatin1String("name")).toString(),
                                     {},
                                     {}});
                open.append(int(form.widgets.size()) - 1);
            } else if (name == QLatin1String("property")) {
                property = reader.attributes().value(QLatin1String("name")).toLatin1();
            } else if (name == QLatin1String("enum") && ownProperty) {
                form.widgets[open.last()].enums.append({property, reader.readElementText().toLatin1()});
            } else if (name == QLatin1String("string") && ownProperty) {
                form.widgets[open.last()].strings.append({property, reader.readElementText()});
            } else if (name == QLatin1String("customwidget")) {
                inCustomWidget = true;
            } else if (name == QLatin1String("class") && inCustomWidget) {
                form.customClasses.append(reader.readElementText());
            }
            // readElementText() consumed the end element.
            if (reader.isEndElement())
                elements.removeLast();
        } else if (reader.isEndElement()) {
            elements.removeLast();
            if (reader.name() == QLatin1String("widget"))
                open.removeLast();
            else if (reader.name() == QLatin1String("customwidget"))
                inCustomWidget = false;
        }
    }
    if (reader.hasError())
        form.error = reader.errorString();
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

#pragma once

#include "karvex_export.h"

#include <QWidget>

class QAbstractButton;
class KaLabel;

// A check box or radio button with a secondary line under its title; the
// whole row is the click target. Screen readers hear the title as the
// button's name and the secondary line as its description.
class KARVEX_EXPORT KaOptionRow : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QString description READ description WRITE setDescription NOTIFY descriptionChanged)
    Q_PROPERTY(bool checked READ isChecked WRITE setChecked NOTIFY toggled USER true)

public:
    enum Kind { CheckBox, RadioButton };
    Q_ENUM(Kind)

    explicit KaOptionRow(QWidget* parent = nullptr);
    KaOptionRow(Kind kind, const QString& text, const QString& description = QString(),
                QWidget* parent = nullptr);

    Kind kind() const { return m_kind; }
    // The KaCheckBox or KaRadioButton inside.
    QAbstractButton* button() const { return m_button; }

    QString text() const;
    void setText(const QString& text);
    QString description() const;
    void setDescription(const QString& text);
    bool isChecked() const;
    void setChecked(bool checked);

Q_SIGNALS:
    void textChanged();
    void descriptionChanged();
    void toggled(bool checked);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    Kind m_kind = CheckBox;
    QAbstractButton* m_button = nullptr;
    KaLabel* m_description = nullptr;
};

#pragma once

#include "kacomboboxbase.h"
#include "kacomboboxconfig.h"
#include "kacomboboxenum.h"
#include "karvex_export.h"

// The design-system combo box: an Outline or Filled style in a Normal
// (28 px) or Large (32 px) size. The mouse wheel never changes its
// selection; it scrolls whatever holds the combo instead.
class KARVEX_EXPORT KaComboBox : public KaComboBoxBase {
    Q_OBJECT
    Q_PROPERTY(KaComboBoxEnum::Style style READ style WRITE setStyle NOTIFY styleChanged)
    Q_PROPERTY(KaComboBoxEnum::Size size READ size WRITE setSize NOTIFY sizeChanged)

public:
    explicit KaComboBox(QWidget* parent = nullptr);
    KaComboBox(QWidget* parent, KaComboBoxEnum::Style style, KaComboBoxEnum::Size size);

    KaComboBoxEnum::Style style() const { return m_style; }
    // An unknown style changes nothing (with a warning).
    void setStyle(KaComboBoxEnum::Style style);
    using QWidget::setStyle;
    KaComboBoxEnum::Size size() const { return m_size; }
    // An unknown size changes nothing (with a warning).
    void setSize(KaComboBoxEnum::Size size);

    // The colour sets of a style.
    KaComboBoxConfig getStyle(KaComboBoxEnum::Style style) const;

public Q_SLOTS:
    void onThemeChanged() override;

Q_SIGNALS:
    void styleChanged(KaComboBoxEnum::Style style);
    void sizeChanged(KaComboBoxEnum::Size size);

protected:
    void applyCustomCSS() override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void init();
    void applyStyle();
    void applySize();

    KaComboBoxEnum::Size m_size = KaComboBoxEnum::Normal;
    KaComboBoxEnum::Style m_style = KaComboBoxEnum::Outline;
};

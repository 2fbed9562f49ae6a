#include "gallerypage.h"

#include "galleryutils.h"

#include <bzfont.h>
#include <bzwidget.h>
#include <kalabelbase.h>

#include <QCoreApplication>
#include <QEvent>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

GalleryPage::GalleryPage(QWidget* parent)
    : QWidget(parent)
    , m_title(GalleryUtils::createLabel(QStringLiteral("label-primary-text"), BzFont::Headline))
    , m_description(GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::Body))
    , m_scrollArea(new QScrollArea) {
    m_description->setWordWrap(true);
    GalleryUtils::markAsHeading(m_title);

    // Transparent content: the window's root paints the background.
    auto* content = new BzWidget;
    m_contentLayout = new QVBoxLayout(content);
    m_contentLayout->setContentsMargins(24, 8, 24, 24);
    m_contentLayout->setSpacing(12);
    m_scrollArea->setWidget(content);
    // setWidget() turns background filling on, which would paint the
    // style's palette over the themed window background.
    content->setAutoFillBackground(false);
    GalleryUtils::styleScrollArea(m_scrollArea);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 20, 0, 0);
    layout->setSpacing(4);
    auto* header = new QVBoxLayout;
    header->setContentsMargins(24, 0, 24, 8);
    header->setSpacing(4);
    header->addWidget(m_title);
    header->addWidget(m_description);
    layout->addLayout(header);
    layout->addWidget(m_scrollArea, 1);
}

void GalleryPage::setTitleSource(const char* title) {
    m_titleSource = title;
    m_title->setText(title ? QCoreApplication::translate("GalleryPages", title) : QString());
    // The content area is a Tab stop: screen readers name it after the page.
    m_scrollArea->setAccessibleName(m_title->text());
}

QSize GalleryPage::overflow() const {
    const QSize content = m_scrollArea->widget()->size();
    const QSize shown = m_scrollArea->viewport()->size();
    return QSize(std::max(0, content.width() - shown.width()),
                 std::max(0, content.height() - shown.height()));
}

void GalleryPage::setDescription(const QString& text) {
    m_description->setText(text);
}

void GalleryPage::showEvent(QShowEvent* event) {
    // Labels the subclass added after construction, in the current direction.
    GalleryUtils::alignLabelsToLayoutDirection(this);
    QWidget::showEvent(event);
}

void GalleryPage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        setTitleSource(m_titleSource);
        retranslateUi();
    } else if (event->type() == QEvent::LayoutDirectionChange) {
        GalleryUtils::alignLabelsToLayoutDirection(this);
    }
    QWidget::changeEvent(event);
}

void GalleryPage::insertSection(QWidget* heading, QWidget* content) {
    auto* section = new QWidget;
    auto* layout = new QVBoxLayout(section);
    layout->setContentsMargins(0, 12, 0, 4);
    layout->setSpacing(10);
    heading->setParent(section);
    layout->addWidget(heading);
    layout->addWidget(content);
    // Before the closing stretch, so sections stay packed at the top.
    contentLayout()->insertWidget(contentLayout()->count() - 1, section);
    if (isVisible())
        GalleryUtils::alignLabelsToLayoutDirection(section);
}

void GalleryPage::onRetranslate(std::function<void()> apply) {
    m_texts.push_back(std::move(apply));
}

void GalleryPage::applyTexts() {
    for (const auto& apply : m_texts)
        apply();
}

KaLabelBase* GalleryPage::addHeading(const char* source) {
    KaLabelBase* label = GalleryUtils::createLabel(QStringLiteral("label-primary-text"), BzFont::Title);
    GalleryUtils::markAsHeading(label);
    contentLayout()->addSpacing(8);
    contentLayout()->addWidget(label);
    // The page's class is the translation context, as with its own tr().
    onRetranslate([this, label, source] { label->setText(metaObject()->tr(source, nullptr)); });
    return label;
}

KaLabelBase* GalleryPage::addCaption(const char* source, QBoxLayout* layout, bool wrap) {
    KaLabelBase* label = GalleryUtils::createLabel(QStringLiteral("label-secondary-text"), BzFont::BodySmall);
    label->setWordWrap(wrap);
    layout->addWidget(label);
    onRetranslate([this, label, source] { label->setText(metaObject()->tr(source, nullptr)); });
    return label;
}

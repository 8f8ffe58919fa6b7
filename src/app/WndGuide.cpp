// SPDX-License-Identifier: Apache-2.0
#include "app/WndGuide.h"

#include "plotwindow/ScreenSize.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace tarsil {

namespace {

/// Shrinks pictures to the width of the window.
class GuideBrowser : public QTextBrowser
{
public:
    using QTextBrowser::QTextBrowser;

    QVariant loadResource(int type, const QUrl& name) override
    {
        QVariant resource = QTextBrowser::loadResource(type, name);
        if (type != QTextDocument::ImageResource)
            return resource;
        QImage image;
        if (resource.canConvert<QImage>())
            image = resource.value<QImage>();
        if (image.isNull())
            image.loadFromData(resource.toByteArray());
        constexpr int margins = 40;
        const int widest = qMax(viewport()->width() - margins, 200);
        return image.width() > widest ? image.scaledToWidth(widest, Qt::SmoothTransformation)
                                      : image;
    }
};

} // namespace

wndGuide::wndGuide(const QString& path, QWidget* parent)
    : QDialog(parent), m_browser(new GuideBrowser(this)), m_find(new QLineEdit(this)),
      m_message(new QLabel(this))
{
    setObjectName(QStringLiteral("wndGuide"));
    setWindowTitle(tr("Guide"));
    setAccessibleName(windowTitle());
    resize(sizeOnScreen(*this, {900, 700}));
    m_browser->setObjectName(QStringLiteral("guide"));
    m_browser->setAccessibleName(tr("Guide"));
    m_browser->setOpenExternalLinks(true);
    m_find->setObjectName(QStringLiteral("find"));
    m_find->setAccessibleName(tr("Find"));
    m_find->setPlaceholderText(tr("Text to find"));
    m_find->setClearButtonEnabled(true);
    m_message->setObjectName(QStringLiteral("message"));
    m_message->setAccessibleName(tr("Result of the search"));
    auto* const label = new QLabel(tr("&Find:"), this);
    label->setBuddy(m_find);
    auto* const next = new QPushButton(tr("&Next"), this);
    next->setObjectName(QStringLiteral("next"));
    next->setDefault(true);
    auto* const close = new QPushButton(tr("Close"), this);
    close->setObjectName(QStringLiteral("close"));
    auto* const row = new QHBoxLayout;
    for (QWidget* widget : {static_cast<QWidget*>(label), static_cast<QWidget*>(m_find),
                            static_cast<QWidget*>(next), static_cast<QWidget*>(m_message)})
        row->addWidget(widget);
    row->addStretch();
    row->addWidget(close);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_browser);
    layout->addLayout(row);
    connect(next, &QPushButton::clicked, this, &wndGuide::findNext);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, m_find,
            qOverload<>(&QWidget::setFocus));
    m_browser->setSource(QUrl::fromLocalFile(path), QTextDocument::MarkdownResource);
    m_find->setFocus();
}

/// Goes on from the start after the last occurrence.
void wndGuide::findNext()
{
    const QString text = m_find->text();
    if (text.isEmpty())
        return;
    m_message->clear();
    if (m_browser->find(text))
        return;
    const QTextCursor before = m_browser->textCursor();
    m_browser->moveCursor(QTextCursor::Start);
    if (m_browser->find(text)) {
        m_message->setText(tr("From the start again"));
        return;
    }
    m_browser->setTextCursor(before);
    m_message->setText(tr("Not found"));
}

} // namespace tarsil

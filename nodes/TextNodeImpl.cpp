#include "nodes/TextNodeImpl.h"

#include <Effect>
#include <GlobalViewerInfo>

#include "nodes/NullSyntaxHighlighter.h"
#include "nodes/StylePainter.h"

#include <QAbstractTextDocumentLayout>
#include <QMetaMethod>
#include <QFontMetrics>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QTextDocument>

namespace VOR2 {

char const *const TextNodeImpl::TYPE_NAME = "VOR2.TextNode";

TextNodeImpl::TextNodeImpl()
{
    QTextDocument *doc = document();
    // No margin: the anchor sits on the text's own edge, and Qt's text item
    // never treats a press near its edge as a press to move or select it.
    doc->setDocumentMargin(0.0);
    m_shadowDocument.setDocumentMargin(0.0);
    setTextInteractionFlags(Qt::TextEditorInteraction);
    m_syntaxHighlighter = new NullSyntaxHighlighter;
    m_syntaxHighlighter->setDocument(doc);
    QFont const font = GLOX::toQFont(GLOX::Font(), GlobalViewerInfo::instance()->getViewerDpi());
    QGraphicsTextItem::setFont(font);
    m_shadowDocument.setDefaultFont(font);
    m_fontHeight = QFontMetrics(font).height();
    connect(doc, &QTextDocument::contentsChange, this, &TextNodeImpl::dispatchContentsChange);
    connect(doc->documentLayout(), &QAbstractTextDocumentLayout::update, this, &TextNodeImpl::dispatchLayoutChanged);
    // Qt's text item redraws what its text control asks for in document
    // coordinates, which the node shifts: the shifted area is asked for too.
    for (QObject *child : children()) {
        int const signal = child->metaObject()->indexOfSignal("updateRequest(QRectF)");
        if (signal < 0) continue;
        connect(child, child->metaObject()->method(signal), this,
                metaObject()->method(metaObject()->indexOfSlot("repaintDocumentArea(QRectF)")));
    }
    applyAutoWidth();
    placeItem();
}

void TextNodeImpl::repaintDocumentArea(QRectF const &area) { update(area.translated(m_contentOffset)); }

TextNodeImpl::~TextNodeImpl()
{
    disconnectAll();
    // Detaching the highlighter rehighlights the document: no change may
    // reach a node that is going, nor its parent, which may be going too.
    QObject::disconnect(document(), nullptr, this, nullptr);
    delete m_syntaxHighlighter;
}

bool TextNodeImpl::isa(char const *typeName) const
{
    return typeNameMatches(typeName, TYPE_NAME) || NodeImpl::isa(typeName);
}

// ---------------------------------------------------------------- changes

void TextNodeImpl::contentChanged() { notifyRepaint(); }

void TextNodeImpl::afterContentChange()
{
    prepareItemGeometryChange(); // Qt still sees the old rectangle: the caches hold it
    applyAutoWidth();
    placeItem();
    notifyGeometryChanged(false);
}

void TextNodeImpl::setPlainDocumentText(std::string const &text)
{
    ProgrammaticChange change(this);
    document()->setPlainText(QString::fromStdString(text));
}

// ------------------------------------------------------------- properties

void TextNodeImpl::setText(std::string const &text)
{
    if (text == m_text) return;
    m_text = text;
    setPlainDocumentText(text);
    afterContentChange();
}

void TextNodeImpl::setHtml(std::string const &html)
{
    {
        ProgrammaticChange change(this);
        document()->setHtml(QString::fromStdString(html));
    }
    m_text = document()->toPlainText().toStdString();
    afterContentChange();
}

GLOX::Font TextNodeImpl::getFont() const
{
    return GLOX::toFont(font(), GlobalViewerInfo::instance()->getViewerDpi());
}

void TextNodeImpl::setFont(GLOX::Font const &gloxFont)
{
    QFont f = GLOX::toQFont(gloxFont, GlobalViewerInfo::instance()->getViewerDpi());
    f.setFamily(QString::fromStdString(GLOX::getClosestScaleableFontName(gloxFont.family(), 1)));
    if (f == font()) return;
    {
        ProgrammaticChange change(this);
        QGraphicsTextItem::setFont(f);
        m_shadowDocument.setDefaultFont(f);
    }
    m_fontHeight = QFontMetrics(f).height();
    afterContentChange();
}

void TextNodeImpl::setColor(QColor const &color)
{
    if (color == defaultTextColor()) return;
    {
        ProgrammaticChange change(this);
        setDefaultTextColor(color);
    }
    contentChanged();
}

void TextNodeImpl::setBackgroundColor(QColor const &color)
{
    if (color == m_backgroundColor) return;
    m_backgroundColor = color;
    contentChanged();
}

void TextNodeImpl::setEditable(bool editable)
{
    if (editable == m_editable) return;
    m_editable = editable;
    Node self(this);
    GLOX::Cursor const textCursor(Qt::IBeamCursor);
    if (editable && !self.hasCursor())
        self.setCursor(textCursor);
    else if (!editable && self.hasCursor() && self.getCursor() == textCursor)
        self.unsetCursor();
}

void TextNodeImpl::setUseTex(bool useTex)
{
    if (useTex == m_useTex) return;
    m_useTex = useTex;
    // The TeX display is not built: the document keeps the plain text in
    // both states, and no TeX layout leaves bounds behind.
    if (!useTex) m_texBounds.reset();
    afterContentChange();
}

void TextNodeImpl::setSyntaxHighlighter(QSyntaxHighlighter *highlighter)
{
    if (highlighter == m_syntaxHighlighter) return;
    if (m_syntaxHighlighter) {
        m_syntaxHighlighter->setDocument(nullptr);
        delete m_syntaxHighlighter;
    }
    m_syntaxHighlighter = highlighter ? highlighter : new NullSyntaxHighlighter;
    {
        ProgrammaticChange change(this);
        m_syntaxHighlighter->setDocument(document());
        m_syntaxHighlighter->rehighlight();
    }
    contentChanged();
}

// ------------------------------------------------------------ node, paint

Bounds TextNodeImpl::computeBounds()
{
    if (m_texBounds) return Bounds(*m_texBounds);
    return Bounds(QRectF(m_contentOffset, document()->size()));
}

void TextNodeImpl::paintContents(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget)
{
    QRectF const area(m_contentOffset, document()->size());
    if (m_backgroundColor.alpha() != 0 && area.width() != 0.0 && area.height() != 0.0)
        painter->fillRect(area, m_backgroundColor);
    // Glyphs too small to read are skipped; the background stays.
    if (!(m_fontHeight * paintScale(painter) > SMALL_TEXT_PIXELS)) return;
    // Qt's text paint, without its dashed frame for a selected or focused
    // item: selection shows as the node's effect.
    QStyleOptionGraphicsItem plain(*option);
    plain.state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
    plain.exposedRect = QRectF(QPointF(0, 0), document()->size());
    painter->translate(m_contentOffset);
    QGraphicsTextItem::paint(painter, &plain, widget);
    painter->translate(-m_contentOffset);
}

void TextNodeImpl::renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                                QWidget *widget)
{
    if (!effect->renderEffectText(this, painter, option, widget))
        effect->renderEffectGeneric(this, painter, option, widget);
}

} // namespace VOR2

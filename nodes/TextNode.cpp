#include <TextNode>

#include "nodes/TextNodeImpl.h"
#include "scene/NodeEmitterTable.h"

namespace VOR2 {

TextNode::TextNode(std::string const &text) : Node(new TextNodeImpl) { getTextImpl()->setText(text); }

TextNode::TextNode(std::string const &text, GLOX::GLPoint<double> const &position) : TextNode(text)
{
    setPosition(position);
}

TextNode::TextNode(TextNodeImpl *impl) : Node(impl) {}

TextNode::TextNode(NodeImpl *impl) : Node(impl && impl->isa(TextNodeImpl::TYPE_NAME) ? impl : nullptr) {}

char const *TextNode::staticGetFullyQualifiedTcosTypeName() { return TextNodeImpl::TYPE_NAME; }

TextNodeImpl *TextNode::getTextImpl() const { return static_cast<TextNodeImpl *>(getImpl()); }

TextNodeImpl *TextNode::getValidTextImpl() const { return static_cast<TextNodeImpl *>(getValidImpl()); }

std::string TextNode::getText() const { return getValidTextImpl()->getText(); }
void TextNode::setText(std::string const &text) const { getValidTextImpl()->setText(text); }
void TextNode::setHtml(std::string const &html) const { getValidTextImpl()->setHtml(html); }
GLOX::Font TextNode::getFont() const { return getValidTextImpl()->getFont(); }
void TextNode::setFont(GLOX::Font const &font) const { getValidTextImpl()->setFont(font); }
GLOX::Color TextNode::getColor() const { return GLOX::fromQColor(getValidTextImpl()->getColor()); }
void TextNode::setColor(GLOX::Color const &color) const { getValidTextImpl()->setColor(GLOX::toQColor(color)); }
GLOX::Color TextNode::getBackgroundColor() const { return GLOX::fromQColor(getValidTextImpl()->getBackgroundColor()); }
void TextNode::setBackgroundColor(GLOX::Color const &color) const
{
    getValidTextImpl()->setBackgroundColor(GLOX::toQColor(color));
}
bool TextNode::isEditable() const { return getValidTextImpl()->isEditable(); }
void TextNode::setEditable(bool editable) const { getValidTextImpl()->setEditable(editable); }
bool TextNode::isUsingTex() const { return getValidTextImpl()->isUsingTex(); }
void TextNode::setUseTex(bool useTex) const { getValidTextImpl()->setUseTex(useTex); }
bool TextNode::isFocusSelectAll() const { return getValidTextImpl()->isFocusSelectAll(); }
void TextNode::setFocusSelectAll(bool selectAll) const { getValidTextImpl()->setFocusSelectAll(selectAll); }
GLOX::TextHAlign TextNode::getHorizontalAlignment() const { return getValidTextImpl()->getHorizontalAlignment(); }
void TextNode::setHorizontalAlignment(GLOX::TextHAlign const &align) const
{
    getValidTextImpl()->setHorizontalAlignment(align);
}
GLOX::TextVAlign TextNode::getVerticalAlignment() const { return getValidTextImpl()->getVerticalAlignment(); }
void TextNode::setVerticalAlignment(GLOX::TextVAlign const &align) const
{
    getValidTextImpl()->setVerticalAlignment(align);
}
int TextNode::getTextDocumentWidth() const { return getValidTextImpl()->getTextDocumentWidth(); }
void TextNode::setTextDocumentWidth(int width) const { getValidTextImpl()->setTextDocumentWidth(width); }
AutoSizeMode TextNode::getWidthAutoSize() const { return getValidTextImpl()->getWidthAutoSize(); }
void TextNode::setWidthAutoSize(AutoSizeMode mode) const { getValidTextImpl()->setWidthAutoSize(mode); }
Node TextNode::getDeleteButtonNode() const { return getValidTextImpl()->getDeleteButtonNode(); }
void TextNode::setDeleteButtonNode(Node const &button) const { getValidTextImpl()->setDeleteButtonNode(button); }
QSyntaxHighlighter *TextNode::getSyntaxHighlighter() const { return getValidTextImpl()->getSyntaxHighlighter(); }
void TextNode::setSyntaxHighlighter(QSyntaxHighlighter *highlighter) const
{
    getValidTextImpl()->setSyntaxHighlighter(highlighter);
}

TextNode::NotifyEmitter *TextNode::getTextChangedEmitter() const
{
    return NodeEmitterTable::instance().text(NodeEmitterTable::TextChanged, getValidTextImpl(), true);
}
TextNode::NotifyEmitter *TextNode::getEditStartedEmitter() const
{
    return NodeEmitterTable::instance().text(NodeEmitterTable::EditStarted, getValidTextImpl(), true);
}
TextNode::NotifyEmitter *TextNode::getEditCompleteEmitter() const
{
    return NodeEmitterTable::instance().text(NodeEmitterTable::EditComplete, getValidTextImpl(), true);
}

} // namespace VOR2

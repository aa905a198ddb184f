#pragma once
// NullSyntaxHighlighter: the highlighter a text node keeps when it is given
// none; it leaves every block as the document formats it.

#include <QSyntaxHighlighter>

namespace VOR2 {

class NullSyntaxHighlighter : public QSyntaxHighlighter {
public:
    NullSyntaxHighlighter() : QSyntaxHighlighter(static_cast<QObject *>(nullptr)) {}

protected:
    void highlightBlock(QString const &) override {}
};

} // namespace VOR2

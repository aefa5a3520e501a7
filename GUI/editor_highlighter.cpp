#include "GUI/editor_highlighter.h"

#include "core/kernel.h"

#include <QRegExp>

namespace GUI {

namespace {

// Each word as a case-sensitive regular expression of its own.
QList<QRegExp> expressions_of(std::vector<std::string> const& words) {
    QList<QRegExp> expressions;
    for (std::string const& word : words)
        expressions << QRegExp(QString::fromStdString(word), Qt::CaseSensitive, QRegExp::RegExp);
    return expressions;
}

}  // namespace

editor_highlighter::editor_highlighter(QTextDocument* document) : QSyntaxHighlighter(document) {}

// Read once per shown form, not per block: the catalogue loads the plugins on every call.
void editor_highlighter::learn_words() {
    QString language;
    emit obtain_programming_language(language);
    keywords = expressions_of(kernel().list_of_keywords_of(language.toStdString()));
    placeholders = expressions_of(kernel().list_of_placeholders());
}

// Every match of each word, searched again from the end of the last one.
void editor_highlighter::format_every_match_of(QList<QRegExp> const& words, QString const& text,
                                               QTextCharFormat const& format) {
    for (QRegExp expression : words) {
        for (int at = expression.indexIn(text); at >= 0 && expression.matchedLength() > 0;
             at = expression.indexIn(text, at + expression.matchedLength()))
            setFormat(at, expression.matchedLength(), format);
    }
}

void editor_highlighter::highlightBlock(QString const& text) {
    QTextCharFormat keyword;
    keyword.setFontWeight(75);
    QTextCharFormat placeholder;
    placeholder.setFontItalic(true);
    placeholder.setForeground(QColor("#575656"));
    format_every_match_of(keywords, text, keyword);
    format_every_match_of(placeholders, text, placeholder);
}

}  // namespace GUI

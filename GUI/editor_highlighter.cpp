#include "GUI/editor_highlighter.h"

#include "core/kernel.h"

#include <QRegExp>

namespace GUI {

namespace {

QStringList texts_of(std::vector<std::string> const& words) {
    QStringList texts;
    for (std::string const& word : words)
        texts << QString::fromStdString(word);
    return texts;
}

}  // namespace

editor_highlighter::editor_highlighter(QTextDocument* document) : QSyntaxHighlighter(document) {}

// Read once per shown form, not per block: the catalogue loads the plugins on every call.
void editor_highlighter::learn_words() {
    QString language;
    emit obtain_programming_language(language);
    keywords = texts_of(kernel().list_of_keywords_of(language.toStdString()));
    placeholders = texts_of(kernel().list_of_placeholders());
}

// Every match of each word, searched again from the end of the last one.
void editor_highlighter::format_every_match_of(QStringList const& words, QString const& text,
                                               QTextCharFormat const& format) {
    for (QString const& word : words) {
        QRegExp const expression(word, Qt::CaseSensitive, QRegExp::RegExp);
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

// Highlighting in the form editor: the language's keywords in bold, the placeholders in grey
// italics. Keywords are matched as they are, also inside longer words.
#ifndef STYLE_TARNEL_GUI_EDITOR_HIGHLIGHTER_H
#define STYLE_TARNEL_GUI_EDITOR_HIGHLIGHTER_H

#include <QList>
#include <QRegExp>
#include <QSyntaxHighlighter>

namespace GUI {

class editor_highlighter : public QSyntaxHighlighter {
    Q_OBJECT
public:
    explicit editor_highlighter(QTextDocument* document);

    // Reads the language's keywords and the placeholders again (when another form is shown).
    void learn_words();

signals:
    void obtain_programming_language(QString& language);

protected:
    void highlightBlock(QString const& text) override;

private:
    void format_every_match_of(QList<QRegExp> const& words, QString const& text, QTextCharFormat const& format);

    // Compiled once per shown form: a block is highlighted on every edit.
    QList<QRegExp> keywords;
    QList<QRegExp> placeholders;
};

}  // namespace GUI

#endif

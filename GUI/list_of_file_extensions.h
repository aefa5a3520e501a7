// The filename extensions field of the paths group: a caption and the field, filled with the
// language's default extensions, refusing (with a tooltip) anything but English letters, digits
// and spaces, and never left empty.
#ifndef STYLE_TARNEL_GUI_LIST_OF_FILE_EXTENSIONS_H
#define STYLE_TARNEL_GUI_LIST_OF_FILE_EXTENSIONS_H

#include <QWidget>

#include <memory>

namespace GUI {

class list_of_file_extensions : public QWidget {
    Q_OBJECT
public:
    explicit list_of_file_extensions(QWidget* parent);
    ~list_of_file_extensions() override;

    QWidget* widget_ptr();
    void enable_n_show();
    void enable();
    void disable();

signals:
    void check_list(QString const& extensions);
    void extension_have_been_added();
    void all_extensions_have_been_deleted();
    void obtain_programming_language(QString& language);

public slots:
    void changed(QString const& text);
    void obtain_filename_extensions(QString& extensions);
    void set_this_filename_extensions(QString const& extensions);

private:
    class implementation;
    std::unique_ptr<implementation> pimpl;
};

}  // namespace GUI

#endif

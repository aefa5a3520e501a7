// A loadable Qt plugin whose root object implements some other interface.
#include <QObject>
#include <QtPlugin>

class no_interface_plugin : public QObject {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.example.some_other_interface")
};

#include "no_interface_plugin.moc"

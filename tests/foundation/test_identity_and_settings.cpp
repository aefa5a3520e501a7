// The program's identity keys its settings store.
#include "app/application_info.h"

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <QtTest>

class test_identity_and_settings : public QObject {
    Q_OBJECT
private slots:
    void settings_land_in_the_users_configuration_directory();
};

void test_identity_and_settings::settings_land_in_the_users_configuration_directory() {
    QTemporaryDir config;
    qputenv("XDG_CONFIG_HOME", config.path().toLocal8Bit());
    set_application_info();
    QCOMPARE(QCoreApplication::applicationName(), QString("Style Tarnel"));
    QCOMPARE(QCoreApplication::organizationName(), QString("Style Tarnel"));
    QCOMPARE(QCoreApplication::organizationDomain(), QString("style-tarnel.org"));
    QCOMPARE(QCoreApplication::applicationVersion(), QString("2.0.0"));
    {
        QSettings settings;
        settings.setValue("EwA", true);
    }
    QVERIFY(QFile::exists(config.path() + "/Style Tarnel/Style Tarnel.conf"));
}

QTEST_GUILESS_MAIN(test_identity_and_settings)
#include "test_identity_and_settings.moc"

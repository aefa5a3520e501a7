#include "tests/harness/test_main.h"

#include "app/application_info.h"
#include "tests/harness/temporary_bundle.h"

#include <QProcess>

#include <cstdlib>
#include <string>
#include <unistd.h>

namespace tarnel_test {

namespace {

constexpr char inside_marker[] = "STYLE_TARNEL_TEST_IN_BUNDLE";

std::string own_executable() {
    char buffer[4096];
    ssize_t length = ::readlink("/proc/self/exe", buffer, sizeof buffer - 1);
    return length > 0 ? std::string(buffer, static_cast<std::size_t>(length)) : std::string();
}

}  // namespace

bool running_in_temporary_bundle() { return std::getenv(inside_marker) != nullptr; }

void identify_as_the_program() { set_application_info(); }

int run_in_temporary_bundle(int argc, char** argv, std::function<int(int, char**)> const& tests) {
    if (running_in_temporary_bundle())
        return tests(argc, argv);

    temporary_bundle bundle(QString::fromStdString(own_executable()));
    if (!bundle.is_valid()) {
        std::fprintf(stderr, "cannot make a temporary bundle for the tests\n");
        return 2;
    }
    QProcessEnvironment environment = bundle.environment();
    environment.insert(inside_marker, bundle.root());
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);

    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(bundle.work_directory());
    process.start(bundle.executable(), arguments);
    if (!process.waitForStarted() || !process.waitForFinished(-1))
        return 2;
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : 3;
}

}  // namespace tarnel_test

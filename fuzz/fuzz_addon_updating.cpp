// Replacing one structure's form in an installed addon, on a file of the fuzz bundle's styles
// directory. Input: structure name, zero byte, new form, zero byte, addon text. Promises: no
// crash; a refused update leaves the file byte for byte as it was; an accepted one writes the
// form; no temporary file is left.
#include "fuzz_support.h"

#include "core/path_to.h"
#include "core/style_addon_editing.h"

#include <QDir>
#include <QFile>

#include <unistd.h>

namespace {

std::string contents_of(QString const& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    fuzz::start_quiet_application(argc, argv);
    QDir().mkpath(path_to().addons_directory());
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    auto const [structure, rest] = fuzz::split_at_first_zero(data, size);
    auto const [form, text] = fuzz::split_at_first_zero(reinterpret_cast<std::uint8_t const*>(rest.data()), rest.size());
    std::string const file_name = "fuzz " + std::to_string(::getpid()) + "[Test].style";
    QString const path = path_to().addons_directory() + "/" + QString::fromStdString(file_name);
    {
        QFile file(path);
        fuzz::check(file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
                        file.write(text.data(), static_cast<qint64>(text.size())) == qint64(text.size()),
                    "cannot prepare the addon");
    }
    bool const updated = update_this(structure, file_name).by(form);
    std::string const now = contents_of(path);
    if (updated)
        fuzz::check(now.find(form) != std::string::npos, "an accepted update without its form");
    else
        fuzz::check(now == text, "a refused update changed the file");
    fuzz::check(QDir(path_to().addons_directory()).entryList({".*tarnel-*"}, QDir::Files | QDir::Hidden).isEmpty(),
                "a temporary file was left");
    QFile::remove(path);
    return 0;
}

#include "engine/tarnel.h"

#include "engine/GUI_formatter.h"
#include "engine/console_formatter.h"

#include <thread>

int tarnel::operator()(QString const& plugin_file, QString const& addon_file,
                       revision_task const& task) const {
    return console_formatter()(plugin_file.toStdString(), addon_file.toStdString(),
                               task.extensions, task.paths);
}

int tarnel::operator()(QString const& plugin_file, QString const& addon_file,
                       revision_task const& task, std::function<void(int)> maximum,
                       std::function<void(int)> value, std::function<void(std::string)> status,
                       std::function<void(std::string)> finished,
                       std::atomic<bool> const& stop) const {
    std::thread worker(GUI_formatter(), plugin_file.toStdString(), addon_file.toStdString(),
                       task.extensions, task.paths, std::move(maximum), std::move(value),
                       std::move(status), std::move(finished), std::cref(stop));
    worker.detach();
    return 0;
}

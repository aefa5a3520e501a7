// Starts a revision run once the plugin and addon file names are known: on the calling thread
// for the command line, or on a detached worker thread for the window.
#ifndef STYLE_TARNEL_ENGINE_TARNEL_H
#define STYLE_TARNEL_ENGINE_TARNEL_H

#include "engine/revision_task.h"

#include <QString>

#include <atomic>
#include <functional>
#include <string>

class tarnel {
public:
    // Returns when the run is over: 0, or 128 + the number of the signal that interrupted it.
    int operator()(QString const& plugin_file, QString const& addon_file,
                   revision_task const& task) const;
    // Returns as soon as the worker is started; always 0. Throws std::system_error when no
    // thread can be made.
    int operator()(QString const& plugin_file, QString const& addon_file, revision_task const& task,
                   std::function<void(int)> maximum, std::function<void(int)> value,
                   std::function<void(std::string)> status,
                   std::function<void(std::string)> finished, std::atomic<bool> const& stop) const;
};

#endif

#include "engine/tarnel.h"

#include "engine/GUI_formatter.h"
#include "engine/console_formatter.h"

#include <thread>

int tarnel::operator()(revision_request const& request) const { return console_formatter()(request); }

int tarnel::operator()(revision_request const& request, std::function<void(int)> maximum,
                       std::function<void(int)> value, std::function<void(std::string)> status,
                       std::function<void(std::string)> finished,
                       std::atomic<bool> const& stop) const {
    std::thread worker(GUI_formatter(), request, std::move(maximum), std::move(value),
                       std::move(status), std::move(finished), std::cref(stop));
    worker.detach();
    return 0;
}

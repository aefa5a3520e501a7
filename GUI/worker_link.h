// What a worker thread shares with the window object that started it: the engine's stop flag, and
// the object its callbacks reach, which the window cuts when it goes. The worker's callbacks hold
// the link, so it lives until the run's last callback is gone, whatever becomes of the window.
#ifndef STYLE_TARNEL_GUI_WORKER_LINK_H
#define STYLE_TARNEL_GUI_WORKER_LINK_H

#include <atomic>
#include <memory>
#include <mutex>

namespace GUI {

template <typename receiver_type>
class worker_link {
public:
    explicit worker_link(receiver_type* receiver) : receiver(receiver) {}

    // Calls `it` with the receiver, unless the window has cut the link.
    template <typename call>
    void reach(call const& it) {
        std::lock_guard<std::mutex> const lock(guard);
        if (receiver != nullptr)
            it(*receiver);
    }
    // The run is asked to stop and reaches nothing from now on.
    void cut() {
        stop = true;
        std::lock_guard<std::mutex> const lock(guard);
        receiver = nullptr;
    }

    std::atomic<bool> stop{false};

private:
    std::mutex guard;
    receiver_type* receiver;
};

}  // namespace GUI

#endif

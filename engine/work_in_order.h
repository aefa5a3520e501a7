// Working on many items at once while their results are used in order: worker threads take the
// items one at a time, and the calling thread takes each result in item order as soon as it and
// every one before it are done. What the caller does with the results (a report, records,
// progress) then reads as if one thread had done all the work. A stop hands out no further item;
// the items already handed out are finished and taken.
#ifndef STYLE_TARNEL_ENGINE_WORK_IN_ORDER_H
#define STYLE_TARNEL_ENGINE_WORK_IN_ORDER_H

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <vector>

template <class result>
class work_in_order {
public:
    // `work` runs on the workers and must not throw; `take` and `stop_requested` run on the
    // calling thread. One worker does everything on the calling thread itself.
    work_in_order(std::function<result(int item)> work, std::function<void(int item, result&)> take,
                  std::function<bool()> stop_requested)
        : work(std::move(work)), take(std::move(take)), stop_requested(std::move(stop_requested)) {}

    // True when a stop came before every item was handed out. `stop_requested` is asked before
    // every item, as a single thread would ask it, and while the next result is awaited.
    bool on(int workers, int items) const {
        if (workers <= 1 || items <= 1)
            return on_this_thread(items);
        return on_threads(workers, items);
    }

private:
    bool on_this_thread(int items) const {
        for (int item = 0; item < items; ++item) {
            if (stop_requested())
                return true;
            result done = work(item);
            take(item, done);
        }
        return false;
    }

    bool on_threads(int workers, int items) const {
        std::mutex guard;
        std::condition_variable changed;
        std::vector<std::optional<result>> done(static_cast<std::size_t>(items));
        std::atomic<int> next{0};
        std::atomic<bool> stopping{false};
        int running = 0;  // under guard

        auto worker = [&] {
            for (int item; !stopping.load() && (item = next.fetch_add(1)) < items;) {
                result outcome = work(item);
                std::lock_guard<std::mutex> const lock(guard);
                done[static_cast<std::size_t>(item)] = std::move(outcome);
                changed.notify_all();
            }
            std::lock_guard<std::mutex> const lock(guard);
            --running;
            changed.notify_all();
        };
        std::vector<std::thread> threads;
        for (int started = 0; started < workers; ++started) {
            std::lock_guard<std::mutex> const lock(guard);
            try {
                threads.emplace_back(worker);
                ++running;
            } catch (std::system_error const&) {
                break;  // fewer workers than wished; none at all leaves the work to this thread
            }
        }
        if (threads.empty())
            return on_this_thread(items);

        int taken = 0;
        while (taken < items) {
            if (!stopping.load() && stop_requested())
                stopping = true;
            std::optional<result> ready;
            {
                std::unique_lock<std::mutex> lock(guard);
                auto const item = static_cast<std::size_t>(taken);
                changed.wait_for(lock, std::chrono::milliseconds(10),
                                 [&] { return done[item].has_value() || running == 0; });
                if (done[item]) {
                    ready = std::move(done[item]);
                    done[item].reset();
                } else if (running == 0) {
                    break;  // stopped, and every item handed out was taken
                }
            }
            if (ready) {
                take(taken, *ready);
                ++taken;
            }
        }
        for (auto& thread : threads)
            thread.join();
        return taken < items;
    }

    std::function<result(int)> work;
    std::function<void(int, result&)> take;
    std::function<bool()> stop_requested;
};

#endif

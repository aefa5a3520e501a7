// How much source the workers of a run hand to the plugin at once. The engine's memory grows with
// the text it formats, so a file waits while others are in the plugin's hands whose sizes with its
// own would pass the largest file the run has met: the largest is then revised alone, and several
// workers need hardly more memory than one. One worker never waits.
#ifndef STYLE_TARNEL_ENGINE_BYTES_IN_HAND_H
#define STYLE_TARNEL_ENGINE_BYTES_IN_HAND_H

#include <condition_variable>
#include <cstddef>
#include <mutex>

class bytes_in_hand {
public:
    // The bytes of one text while the plugin has it; given back when it goes.
    class held {
    public:
        held(bytes_in_hand& all, std::size_t bytes) : all(all), bytes(bytes) {}
        held(held const&) = delete;
        held& operator=(held const&) = delete;
        ~held() { all.given_back(bytes); }

    private:
        bytes_in_hand& all;
        std::size_t bytes;
    };

    // Waits until a text of `bytes` may go to the plugin: nothing else is in its hands, or all of
    // it with this text is no larger than the largest text met so far. Safe on several threads.
    held taken_for(std::size_t bytes);

private:
    void given_back(std::size_t bytes);

    std::mutex guard;
    std::condition_variable freed;
    std::size_t in_hand = 0;
    std::size_t largest = 0;
};

#endif

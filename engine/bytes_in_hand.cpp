#include "engine/bytes_in_hand.h"

#include <algorithm>

bytes_in_hand::held bytes_in_hand::taken_for(std::size_t bytes) {
    std::unique_lock<std::mutex> lock(guard);
    largest = std::max(largest, bytes);
    freed.wait(lock, [&] { return in_hand == 0 || in_hand + bytes <= largest; });
    in_hand += bytes;
    return held(*this, bytes);
}

void bytes_in_hand::given_back(std::size_t bytes) {
    {
        std::lock_guard<std::mutex> const lock(guard);
        in_hand -= bytes;
    }
    freed.notify_all();
}

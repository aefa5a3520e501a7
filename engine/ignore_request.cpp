#include "engine/ignore_request.h"

ignore_request ignore_request::counting_into(int& left_out) const {
    ignore_request counting = *this;
    counting.collected = [&left_out, heard = collected](int found, int files_left_out) {
        left_out = files_left_out;
        if (heard)
            heard(found, files_left_out);
    };
    return counting;
}

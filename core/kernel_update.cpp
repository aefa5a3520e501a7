// kernel: self-update (placeholder until the update is built).
#include "core/kernel.h"

void kernel::remove_old_executable_if_required() const {}

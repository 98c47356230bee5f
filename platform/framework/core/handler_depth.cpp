#include "core/handler_depth.h"

int& fx::HandlerDepth() noexcept {
    static thread_local int depth = 0;
    return depth;
}

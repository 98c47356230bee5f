#pragma once

#include "config/check/gathered_elements.h"

/// Stands beside the loading of one file: what the readers report goes to the host's sink, together with what can be
/// said of the file as a whole, when the object goes. Without a sink nobody listens.
class LoadWatch {
public:
    LoadWatch() = default;
    ~LoadWatch();
    LoadWatch(const LoadWatch&) = delete;
    LoadWatch& operator=(const LoadWatch&) = delete;

    DiagnosticsSink& Sink();

private:
    GatheringSink m_gathered;
};

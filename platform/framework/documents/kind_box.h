#pragma once

#include <vector>

class CDocTemplate;

namespace fx {

/// Asks in a modal dialog of which kind a new document is to be. Null: the user has left it.
CDocTemplate* AskKind(const std::vector<CDocTemplate*>& kinds);

} // namespace fx

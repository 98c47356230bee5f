#pragma once

/// The beginning and the end of fx::IsPainting, told by CPaintDC. They may be nested.
void BeginPaintRound();
void EndPaintRound();

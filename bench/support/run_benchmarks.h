#pragma once

/// Those that the command line asks for.
void RunBenchmarks();

// Nothing of its own: this file is compiled for precompiled headers that others share.

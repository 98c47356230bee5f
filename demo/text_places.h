#pragma once

#include <vector>

/// A part of a picture, in its pixels.
struct TextBox {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

/// Where texts stand on a part of a picture: none over another, none over what was kept free, and none cut off at the
/// part's edge.
class TextPlaces {
public:
    explicit TextPlaces(const TextBox& written) : m_written(written) {}

    /// No text from here on stands there. The box may lie over anything.
    void KeepFree(const TextBox& box) { m_taken.push_back(box); }
    /// True, and the place is taken, when a text may stand there. Boxes may touch.
    bool Take(const TextBox& box);
    /// How far up the box has to go until it lies over nothing that is kept free or taken; 0, too, where it would have
    /// to go further than `limit`.
    double RiseOf(const TextBox& box, double limit) const;

private:
    TextBox m_written;
    std::vector<TextBox> m_taken;
};

/// Every how many lines of a grid a number stands, so that each has its room and all are equally far apart: 1, 2, 3, 4,
/// 6 or 12.
int LinesToANumber(double linesApart, double room);

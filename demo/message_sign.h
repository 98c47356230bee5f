#pragma once

#include <vector>

enum class MessageKind { Information, Question, Warning, Error };

/// A line with round ends in a square whose side is 1; a dot where it ends as it begins.
struct SignStroke {
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    double width = 0;
};

/// What a kind of message is known by, of strokes, so that it is sharp at every scale: a plate, and a sign upon it.
struct MessageSign {
    std::vector<SignStroke> plate;
    std::vector<SignStroke> sign;
};

/// The same whatever the direction of the texts.
MessageSign SignOf(MessageKind kind);

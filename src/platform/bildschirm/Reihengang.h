#pragma once

class Element;
struct Taste;

/// Answer fields and options: an arrow that they have no use for moves the focus to the next reachable element
/// of the same array, in reading order, and marks it where options are marked by arrows. At the end of the
/// array it moves nothing. False for other elements and keys.
bool geheInReihe(Element& element, const Taste& taste);

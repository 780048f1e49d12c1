#pragma once

class Element;
struct Taste;

/// Gives the key to the element. A key with Ctrl, Alt or Meta reaches only dates, which know some: to all
/// others it means nothing, and nothing is what it does.
bool gibTaste(Element& element, const Taste& taste);

/// Answer fields and options: an arrow that they have no use for moves the focus to the next reachable element
/// of the same array, in reading order, and marks it where options are marked by arrows. At the end of the
/// array it moves nothing. False for other elements and keys.
///
///     const bool benutzt = gibTaste(element, taste) || geheInReihe(element, taste);
bool geheInReihe(Element& element, const Taste& taste);

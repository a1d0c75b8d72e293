#pragma once

#include <array>

/// The colours of a new map.
namespace MapColors {

constexpr char const* ink = "#3b3a44";
constexpr char const* softInk = "#6b6670";
constexpr char const* paper = "#ffffff";
constexpr char const* ground = "#faf8f3";  // of a map of which nothing is known but its data
constexpr char const* land = "#f6eedc";
constexpr char const* border = "#a08f88";
constexpr char const* sea = "#cbe4f0";
constexpr char const* shore = "#8fb0c2";
constexpr char const* river = "#5e9cc0";
constexpr char const* waterText = "#3f7396";
constexpr char const* graticule = "#70708898";

/// Of areas, which are light, so that lines, marks and letters stand out from them. Searched for among light tints of
/// these hues so that the least difference of any two of them and of the sea, as normal, protanope and deuteranope eyes
/// see them, is as large as can be.
constexpr std::array<char const*, 5> areas = {"#d7fae3", "#fff6ac", "#d5acb8", "#ddb193", "#caafe9"};

/// Of lines and marks (Okabe and Ito 2008, “Color Universal Design”), which everybody can tell apart.
constexpr std::array<char const*, 7> marks = {"#d55e00", "#0072b2", "#009e73", "#cc79a7",
                                              "#e69f00", "#56b4e9", "#f0e442"};

/// Of what belongs to no class.
constexpr char const* others = "#c9c5c1";

}  // namespace MapColors

#pragma once

#include <QSize>

#include <chrono>

/// Sizes in logical pixels, on a grid of four, and durations: all that the panel's looks are measured by.
namespace Design {
inline constexpr QSize panelSize{340, 480};
inline constexpr int panelRadius = 12;
inline constexpr int shadowMargin = 20; ///< around the panel, where there is a compositor
inline constexpr int popoverRadius = 8;
inline constexpr int popoverShadow = 12;
// The least at which all text stands out from its ground, whatever shines through: the orange of a match is
// the first to suffer in light, grey in dark.
inline constexpr float sharpGroundOpacity = 0.97F;
inline constexpr float blurredLightGroundOpacity = 0.965F;
inline constexpr float blurredDarkGroundOpacity = 0.88F;
inline constexpr int fadingEdge = 20;  ///< of a list that goes on below
inline constexpr int panelMargin = 12; ///< to the edge of the screen
inline constexpr int grid = 4;
inline constexpr int edge = 12; ///< from the panel's side to its content

inline constexpr int bodySize = 13;
inline constexpr int smallSize = 11;

inline constexpr int topBarHeight = 36;
inline constexpr int headerHeight = 28;
inline constexpr int timeColumn = 44;
inline constexpr int rowPadding = 6;
inline constexpr int smallLineHeight = 16; ///< of a remark above or below a row's text
inline constexpr int quoteHeight = 22;
inline constexpr int rowRadius = 8;
inline constexpr int symbolSize = 14;
inline constexpr int smallSymbolSize = 12;
inline constexpr int emptySymbolSize = 32;
inline constexpr int menuRadius = 8;
inline constexpr int fieldHeight = 32;
inline constexpr int barHeight = 28;
inline constexpr int suggestionHeight = 28;
inline constexpr int buttonSize = 28;
inline constexpr int buttonSymbolSize = 16;

inline constexpr std::chrono::milliseconds scrollDuration{600};
inline constexpr std::chrono::milliseconds flashDuration{500};
} // namespace Design

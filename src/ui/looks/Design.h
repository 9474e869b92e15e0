#pragma once

#include <QRgb>
#include <QSize>

#include <chrono>

/// The numbers of the panel's design: sizes in logical pixels on a grid of four, durations and colours.
namespace Design {
inline constexpr QSize panelSize{340, 480};
inline constexpr int panelRadius = 12;
inline constexpr int shadowMargin = 20; ///< around the panel, where there is a compositor
inline constexpr int popoverRadius = 8;
inline constexpr int popoverShadow = 12;
// The least opacity at which all text keeps its contrast on any background: limited by the orange of a match
// in light, by grey in dark.
inline constexpr float sharpGroundOpacity = 0.97F;
inline constexpr float blurredLightGroundOpacity = 0.965F;
inline constexpr float blurredDarkGroundOpacity = 0.88F;
inline constexpr int fadingEdge = 20;  ///< of a list that continues below
inline constexpr int panelMargin = 12; ///< to the edge of the screen
inline constexpr int grid = 4;
inline constexpr int edge = 12; ///< from the panel's side to its content

inline constexpr int bodySize = 13;
inline constexpr int smallSize = 11;

inline constexpr int headerHeight = 28;
inline constexpr int timeColumn = 44;
inline constexpr int rowPadding = 6;
inline constexpr int smallLineHeight = 16; ///< of a small line above or below a row's text
inline constexpr int quoteHeight = 22;
inline constexpr int rowRadius = 8;
inline constexpr int symbolSize = 14;
inline constexpr int smallSymbolSize = 12;
inline constexpr int emptySymbolSize = 32;
inline constexpr int menuRadius = 8;
inline constexpr int menuTextWidth = 240; ///< of an entry that shows what the user has written
inline constexpr int fieldHeight = 32;
inline constexpr int flatButtonHeight = 24;
inline constexpr int accentWidth = 3; ///< of the edge of the row being edited
inline constexpr int focusWidth = 2;  ///< of the outline around what has the focus
inline constexpr int barHeight = 28;
inline constexpr int suggestionHeight = 28;
inline constexpr int heightBesideSuggestions = 200; ///< in the panel, for three rows, the field and the bars
inline constexpr int buttonSize = 28;
inline constexpr int buttonSymbolSize = 16;

/// A colour in a light and in a dark appearance; NoteStyle::color() chooses.
struct Tint {
    QRgb light;
    QRgb dark;
};
inline constexpr Tint text{0xff26282c, 0xffe6e7ea};
inline constexpr Tint metaText{0xff60646c, 0xffa6abb4}; ///< times, headers, hints
inline constexpr Tint numberText{0xff408c66, 0xff75a685};
inline constexpr Tint tagText{0xff4278ab, 0xff85a1bf};
inline constexpr Tint focusOutline = tagText; ///< around what has the focus
inline constexpr Tint matchText{0xffb87f29, 0xffdbad61};
inline constexpr Tint destructiveText{0xffb3524d, 0xffd68580};
inline constexpr Tint ground{0xfffafaf8, 0xff24262a};
inline constexpr Tint fieldGround{0xffffffff, 0xff303338}; ///< the capsule of the text field
inline constexpr Tint quoteGround{0xffe3e3df, 0xff3a3e45}; ///< behind a quoted note
inline constexpr Tint hoverGround{0xfff1f1ee, 0xff2f3238}; ///< behind the row or button under the pointer
inline constexpr Tint hairline{0xffd9d9d5, 0xff3d4046};
inline constexpr Tint editingGround{0xffecf2f9, 0xff2c3642};   ///< behind the note being edited
inline constexpr Tint selectionGround{0xffb3d1f0, 0xff3a5f8a}; ///< behind selected text
inline constexpr Tint flashGround{0xffffeec4, 0xff453c22};     ///< behind a note that was jumped to

inline constexpr std::chrono::milliseconds scrollDuration{600};
inline constexpr std::chrono::milliseconds statusDuration{5000};
inline constexpr std::chrono::milliseconds flashDuration{1400}; ///< from when the note is in view
} // namespace Design

// The codes of the keys that a window handles itself.
#pragma once

namespace Keys {

inline constexpr int Enter = 13;
inline constexpr int Escape = 27;
inline constexpr int PageUp = 33;
inline constexpr int PageDown = 34;
inline constexpr int Left = 37;
inline constexpr int Up = 38;
inline constexpr int Right = 39;
inline constexpr int Down = 40;
inline constexpr int Delete = 46;
inline constexpr int KeypadEnter = 108;

/// The key held down with another one.
enum class Modifier { None, Shift, Ctrl };

}  // namespace Keys

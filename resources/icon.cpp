#include "resources/icon.h"

#include <array>
#include <string_view>

namespace quorvel {

namespace {

constexpr int kSide = 32;

// A monitor with four camera panes: a landscape, a door, a car on a road, a person in a corridor.
constexpr std::array<std::string_view, kSide> kDrawing = {
    "................................", "................................",
    "..++++++++++++++++++++++++++++..", ".+++++++++++++++++++++++++++++-.",
    ".++sssssssssssskkwwwwwwwwwwww--.", ".++sssssssssyyskkwwwwwwwwwwww--.",
    ".++sssssssssyyskkwwwwddddwwww--.", ".++sssgsssssssskkwwwwddddwwww--.",
    ".++ssgggssssssskkwwwwddddwwww--.", ".++sgggggssggsskkwwwwdddywwww--.",
    ".++ggggggggggggkkwwwwddddwwww--.", ".++ggggggggggggkkffffddddffff--.",
    ".++ggggggggggggkkffffffffffff--.", ".++kkkkkkkkkkkkkkkkkkkkkkkkkk--.",
    ".++kkkkkkkkkkkkkkkkkkkkkkkkkk--.", ".++sssssssssssskkwwwwwwwwwwww--.",
    ".++ggggggggggggkkwwwwwyywwwww--.", ".++ffffffffffffkkwwwwwyywwwww--.",
    ".++ffffrrrrffffkkwwwwbbbbwwww--.", ".++fffrbbrbrfffkkwwwwbbbbwwww--.",
    ".++ffrrrrrrrrffkkwwwwbbbbwwww--.", ".++ffrrrrrrrrffkkwwwwwkkwwwww--.",
    ".++fffkkffkkfffkkfffffkkfffff--.", ".++ffffffffffffkkffffffffffff--.",
    ".+-------------------------rr--.", "..----------------------------..",
    ".............------.............", ".............------.............",
    "........++++++++++++++++........", "........----------------........",
    "................................", "................................",
};

struct Color {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  std::uint8_t opacity = 255;
};

constexpr Color ColorOf(char letter) {
  switch (letter) {
    case '+': return {96, 104, 116};   // casing in the light
    case '-': return {56, 62, 72};     // casing in the shade
    case 'k': return {18, 20, 24};     // gaps, tires, shoes
    case 's': return {124, 186, 232};  // sky
    case 'y': return {250, 208, 92};   // sun, knob, face
    case 'g': return {84, 148, 76};    // grass
    case 'w': return {206, 200, 186};  // wall
    case 'd': return {132, 88, 52};    // door
    case 'f': return {136, 136, 140};  // floor, road
    case 'r': return {204, 52, 44};    // car, record light
    case 'b': return {48, 86, 158};    // window, coat
    default: return {0, 0, 0, 0};
  }
}

constexpr bool IsSquare() {
  for (const std::string_view row : kDrawing) {
    if (row.size() != kSide) return false;
  }
  return true;
}
static_assert(IsSquare());

Picture Paint() {
  Picture picture{kSide, kSide, {}};
  picture.rgba.reserve(std::size_t{4} * kSide * kSide);
  for (const std::string_view row : kDrawing) {
    for (const char letter : row) {
      const Color color = ColorOf(letter);
      for (const std::uint8_t part : {color.red, color.green, color.blue, color.opacity}) {
        picture.rgba.push_back(part);
      }
    }
  }
  return picture;
}

}  // namespace

const Picture& Icon101() {
  static const Picture picture = Paint();
  return picture;
}

}  // namespace quorvel

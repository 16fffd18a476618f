#pragma once
// Premultiplied ARGB arithmetic for the images the floor plan draws into
// itself, as Qt's own blend functions do it: two channels at a time.
#include <cstdint>

inline std::uint32_t fpv_byte_mul(std::uint32_t x, std::uint32_t a)
{
  std::uint32_t t = (x & 0xff00ffu) * a;
  t = (t + ((t >> 8) & 0xff00ffu) + 0x800080u) >> 8;
  t &= 0xff00ffu;
  x = ((x >> 8) & 0xff00ffu) * a;
  x = (x + ((x >> 8) & 0xff00ffu) + 0x800080u);
  x &= 0xff00ff00u;
  return x | t;
}

// source over destination.
inline std::uint32_t fpv_over(std::uint32_t source, std::uint32_t destination)
{
  return source + fpv_byte_mul(destination, 255u - (source >> 24));
}

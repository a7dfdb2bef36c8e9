// Mask sizes and the work buffer.
#pragma once
#include "frame/types.h"

namespace sig5d {
namespace {

constexpr int bytesOfBuffer = 16; // for each element of the mask
// The longest one whose buffer has a size that is an int, made odd.
constexpr int longestMask = 0x7FFFFFFF / bytesOfBuffer + 1;

constexpr int oddMask(int size) { return (size - 1) | 1; }
constexpr Status statusOf(int size) { return size % 2 ? StsNoErr : StsEvenMedianMaskSize; }

} // namespace
} // namespace sig5d

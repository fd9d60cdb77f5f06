// Damages the content of a file the way that accidents and strangers do.
#pragma once

#include <string>
#include <string_view>

// One to eight deeds: bytes changed, put in, taken out, repeated or swapped, words of the format
// and extreme numbers where something else stood, nesting without end, an early end. The same seed
// gives the same damage.
std::string Damaged(std::string_view content, unsigned seed);

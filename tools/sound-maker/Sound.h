#pragma once

#include <filesystem>
#include <vector>

namespace Parlino {

// One channel of samples from -1 to 1.
using Sound = std::vector<double>;

constexpr double SampleRate = 44100;

Sound MakeSilence(double seconds);

// Mixes one sound into another, starting at the given second; what does not fit is cut off.
void Mix(Sound& target, const Sound& added, double start, double loudness);

// Keeps the frequencies around this one; a small width rings, a large one hisses.
Sound FilterBand(const Sound& sound, double frequency, double width);

// Removes any constant offset, sets the highest peak and fades both ends to silence, so that
// nothing clicks.
void Finish(Sound& sound, double peak, double fadeIn, double fadeOut);

void WriteWave(const std::filesystem::path& file, const Sound& sound);

}  // namespace Parlino

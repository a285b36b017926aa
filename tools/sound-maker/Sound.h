#pragma once

#include <filesystem>
#include <vector>

namespace Parlino {

// One channel of samples from -1 to 1.
using Sound = std::vector<double>;

constexpr double SampleRate = 44100;

Sound MakeSilence(double seconds);

// Adds one sound to another from the given second on; what does not fit is lost.
void Mix(Sound& target, const Sound& added, double start, double loudness);

// Keeps the neighbourhood of a frequency; a small width rings, a large one hisses.
Sound FilterBand(const Sound& sound, double frequency, double width);

// Takes away any constant offset, sets the highest peak and lets both ends
// meet silence, so that nothing clicks.
void Finish(Sound& sound, double peak, double fadeIn, double fadeOut);

void WriteWave(const std::filesystem::path& file, const Sound& sound);

}  // namespace Parlino

#include "tools/sound-maker/Sound.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <numbers>
#include <numeric>
#include <stdexcept>

namespace Parlino {
namespace {

std::size_t CountSamples(double seconds) {
  return static_cast<std::size_t>(std::lround(seconds * SampleRate));
}

// Half a cosine wave, rising from 0 to 1.
double EaseIn(double part) {
  return 0.5 - 0.5 * std::cos(std::numbers::pi * std::min(part, 1.0));
}

void PutNumber(std::ostream& stream, std::uint32_t number, int bytes) {
  for (int i = 0; i < bytes; ++i) stream.put(static_cast<char>(number >> (8 * i) & 0xFF));
}

}  // namespace

Sound MakeSilence(double seconds) {
  return Sound(CountSamples(seconds), 0.0);
}

void Mix(Sound& target, const Sound& added, double start, double loudness) {
  const auto first = CountSamples(start);
  for (std::size_t i = 0; i < added.size() && first + i < target.size(); ++i)
    target[first + i] += loudness * added[i];
}

// The usual second-order band-pass filter with unit gain at its centre.
Sound FilterBand(const Sound& sound, double frequency, double width) {
  const double angle = 2 * std::numbers::pi * frequency / SampleRate;
  const double alpha = std::sin(angle) * width / (2 * frequency);
  const double scale = 1 / (1 + alpha);
  double in1 = 0, in2 = 0, out1 = 0, out2 = 0;

  Sound result;
  result.reserve(sound.size());
  for (const double in : sound) {
    const double out =
        scale * (alpha * (in - in2) + 2 * std::cos(angle) * out1 - (1 - alpha) * out2);
    in2 = in1;
    in1 = in;
    out2 = out1;
    out1 = out;
    result.push_back(out);
  }
  return result;
}

void Finish(Sound& sound, double peak, double fadeIn, double fadeOut) {
  const double offset =
      std::accumulate(sound.begin(), sound.end(), 0.0) / static_cast<double>(sound.size());
  const double last = static_cast<double>(sound.size() - 1) / SampleRate;
  double highest = 0;
  for (std::size_t i = 0; i < sound.size(); ++i) {
    const double time = static_cast<double>(i) / SampleRate;
    sound[i] = (sound[i] - offset) * EaseIn(time / fadeIn) * EaseIn((last - time) / fadeOut);
    highest = std::max(highest, std::abs(sound[i]));
  }
  for (double& sample : sound) sample *= peak / highest;
}

void WriteWave(const std::filesystem::path& file, const Sound& sound) {
  constexpr std::uint32_t channels = 1, bytesPerSample = 2, plainSamples = 1, headerRest = 36;
  constexpr auto rate = static_cast<std::uint32_t>(SampleRate);
  const auto dataSize = static_cast<std::uint32_t>(sound.size()) * bytesPerSample;

  std::ofstream stream(file, std::ios::binary);
  stream << "RIFF";
  PutNumber(stream, headerRest + dataSize, 4);
  stream << "WAVEfmt ";
  PutNumber(stream, 16, 4);
  PutNumber(stream, plainSamples, 2);
  PutNumber(stream, channels, 2);
  PutNumber(stream, rate, 4);
  PutNumber(stream, rate * channels * bytesPerSample, 4);
  PutNumber(stream, channels * bytesPerSample, 2);
  PutNumber(stream, 8 * bytesPerSample, 2);
  stream << "data";
  PutNumber(stream, dataSize, 4);
  for (const double sample : sound)
    PutNumber(stream, static_cast<std::uint32_t>(std::lround(sample * 32767)), 2);
  if (!stream.flush()) throw std::runtime_error("cannot write " + file.string());
}

}  // namespace Parlino

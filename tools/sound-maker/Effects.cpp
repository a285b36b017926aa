#include "tools/sound-maker/Effects.h"

#include <array>
#include <cmath>
#include <numbers>

#include "tools/sound-maker/Noise.h"

namespace Parlino {
namespace {

double TimeOf(std::size_t sample) {
  return static_cast<double>(sample) / SampleRate;
}

// Decays exponentially, but reaches true silence at the end.
double Decay(double time, double seconds, double decay) {
  return std::exp(-time / decay) * (1 - time / seconds);
}

// Hiss that swells for a moment and then dies away.
Sound MakePuff(Noise& noise, double seconds, double swell, double decay) {
  Sound puff = MakeSilence(seconds);
  for (std::size_t i = 0; i < puff.size(); ++i) {
    const double time = TimeOf(i);
    const double level = time < swell ? time / swell : Decay(time - swell, seconds - swell, decay);
    puff[i] = level * noise.NextSample();
  }
  return puff;
}

// A dull knock whose pitch drops a little, like wood under cloth.
Sound MakeThump(double seconds, double pitch, double decay) {
  Sound thump = MakeSilence(seconds);
  double phase = 0;
  for (std::size_t i = 0; i < thump.size(); ++i) {
    const double level = Decay(TimeOf(i), seconds, decay);
    phase += 2 * std::numbers::pi * pitch * (0.75 + 0.25 * level) / SampleRate;
    thump[i] = level * std::sin(phase);
  }
  return thump;
}

// The edge of one card springing off the thumb.
Sound MakeFlick(Noise& noise) {
  const double pitch = 2200 + 1600 * noise.NextFraction();
  return FilterBand(MakePuff(noise, 0.03, 0.0008, 0.0045), pitch, 2400);
}

}  // namespace

Sound MakeShuffle() {
  constexpr int flicks = 46;
  constexpr double riffle = 0.66;
  Noise noise(20011);
  Sound sound = MakeSilence(1.05);

  // The thumbs start slowly, speed up, and slow down again for the last few cards.
  for (int i = 0; i < flicks; ++i) {
    const double part = (i + 0.5 * noise.NextFraction()) / flicks;
    const double start = 0.02 + riffle * (part + 0.1 * std::sin(2 * std::numbers::pi * part));
    const double swell = 0.45 + 0.55 * std::sin(std::numbers::pi * part);
    const double loudness = swell * (0.6 + 0.4 * noise.NextFraction());
    Mix(sound, MakeFlick(noise), start, loudness);
  }
  Mix(sound, FilterBand(MakePuff(noise, 0.75, 0.4, 0.12), 1500, 1800), 0.0, 0.10);

  // Then the two halves slide together and are knocked on the table.
  Mix(sound, FilterBand(MakePuff(noise, 0.24, 0.1, 0.035), 2600, 2600), 0.70, 0.55);
  Mix(sound, FilterBand(MakePuff(noise, 0.1, 0.001, 0.012), 1400, 1500), 0.87, 1.0);
  Mix(sound, MakeThump(0.12, 190, 0.02), 0.87, 0.25);
  Finish(sound, 0.6, 0.01, 0.06);
  return sound;
}

Sound MakeCard() {
  Noise noise(7);
  Sound sound = MakeSilence(0.13);
  Mix(sound, FilterBand(MakePuff(noise, 0.05, 0.012, 0.008), 3000, 3000), 0.0, 0.35);
  Mix(sound, FilterBand(MakePuff(noise, 0.1, 0.0012, 0.011), 1300, 1500), 0.014, 1.0);
  Mix(sound, MakeThump(0.11, 165, 0.022), 0.014, 0.45);
  Finish(sound, 0.6, 0.002, 0.03);
  return sound;
}

Sound MakeBell() {
  struct Partial {
    double ratio, level, decay;
  };
  // The high partials are faint and fade early, which keeps the bell soft; a weak partial close to
  // the fundamental makes it beat slowly, which keeps the sound alive.
  constexpr std::array partials{
      Partial{1.0, 0.8, 0.42},    Partial{1.0021, 0.16, 0.5}, Partial{2.0, 0.26, 0.26},
      Partial{2.995, 0.10, 0.16}, Partial{4.18, 0.06, 0.09},  Partial{5.43, 0.03, 0.05},
  };
  constexpr double keynote = 698.46;

  Sound sound = MakeSilence(1.2);
  for (std::size_t i = 0; i < sound.size(); ++i)
    for (const Partial& partial : partials)
      sound[i] += partial.level * std::exp(-TimeOf(i) / partial.decay) *
                  std::sin(2 * std::numbers::pi * keynote * partial.ratio * TimeOf(i));
  Finish(sound, 0.35, 0.006, 0.35);
  return sound;
}

}  // namespace Parlino

/// One voice of a sound. It lives in a module of its own, which is loaded when the first sound is played: the libraries
/// of the platform's sound system cost more at the start of the program than all the rest of the layer.
#pragma once

#include "toolkit/WavFormat.h"

class SoundVoice {
public:
    SoundVoice() = default;
    SoundVoice(const SoundVoice&) = delete;
    SoundVoice& operator=(const SoundVoice&) = delete;
    virtual ~SoundVoice() = default;

    /// Plays from the start; `volume` in percent. In silence where there is no sound device.
    virtual void Play(int volume) = 0;
    virtual void SetVolume(int percent) = 0;
    [[nodiscard]] virtual bool IsPlaying() const = 0;
};

/// What the module offers under the name "MakeSoundVoice": a voice for the samples of a file, the caller's to delete.
using SoundVoiceMaker = SoundVoice*(const char* path, const WavFormat& format);

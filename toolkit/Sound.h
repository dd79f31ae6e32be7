/// Sound files.
#pragma once

#include "toolkit/core/FolderItem.h"

#include <memory>

class SoundVoice;

/// A sound that can be played many times. The platform's sound system is woken by the first `Play`, not before.
class Sound {
public:
    /// The sound of a 16-bit PCM WAV file, or null when it is missing or none.
    static std::unique_ptr<Sound> OpenAsSound(const FolderItem& file);
    ~Sound();

    /// A second voice of the same sound and volume.
    [[nodiscard]] std::unique_ptr<Sound> Clone() const;
    [[nodiscard]] bool IsPlaying() const;
    /// Plays from the start; without a sound device nothing happens.
    void Play();

    /// Percent, 0 to 100.
    [[nodiscard]] int Volume() const;
    void SetVolume(int percent);

private:
    explicit Sound(FolderItem file);
    FolderItem file_;
    int volume_ = 100;
    std::unique_ptr<SoundVoice> voice_;
};

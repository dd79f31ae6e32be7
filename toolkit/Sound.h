/// Sound files.
#pragma once

#include "toolkit/core/FolderItem.h"

#include <memory>

/// A sound that can be played many times, over itself too. The platform's sound system is woken by the first `Play`,
/// not before.
class Sound {
public:
    /// The sound of a 16-bit PCM WAV file, or null when there is no such file. It must end in half a second of silence:
    /// a sound ends when its last sample has been handed over, not when it has been heard.
    static std::unique_ptr<Sound> OpenAsSound(const FolderItem& file);

    /// Starts a voice of its own, whatever plays; without a sound device, or with a broken file, nothing happens.
    /// False where the module that plays is missing.
    bool Play() const;

    /// Percent, 0 to 100, from the next `Play` on.
    [[nodiscard]] int Volume() const { return volume_; }
    void SetVolume(int percent);

private:
    explicit Sound(FolderItem file);
    FolderItem file_;
    int volume_ = 100;
};

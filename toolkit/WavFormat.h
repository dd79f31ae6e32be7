/// What a WAV file says of itself. For the sources of the layer alone.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

/// The samples of a sound: plain, of 16 bits.
struct WavFormat {
    static constexpr int BytesPerSample = 2;

    int Channels;
    /// Samples a second of each channel.
    int Rate;
    /// The place of the samples in the file, in bytes.
    std::int64_t Offset, Length;

    /// Nothing for a file that is missing, or none of this kind. Only its head is read.
    static std::optional<WavFormat> Of(const std::filesystem::path& file);
};

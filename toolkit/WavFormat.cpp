#include "toolkit/WavFormat.h"

#include <QtEndian>
#include <array>
#include <fstream>
#include <string_view>

namespace {

/// The head of a piece of the file: four letters and the number of bytes that follow.
struct ChunkHead {
    std::array<char, 4> name;
    quint32 size;

    [[nodiscard]] bool Is(std::string_view letters) const { return std::string_view(name.data(), 4) == letters; }
};

bool Read(std::istream& stream, ChunkHead& head)
{
    std::array<char, 4> size{};
    if (!stream.read(head.name.data(), 4) || !stream.read(size.data(), 4)) return false;
    head.size = qFromLittleEndian<quint32>(size.data());
    return true;
}

bool IsWav(std::istream& stream)
{
    ChunkHead head{};
    std::array<char, 4> form{};
    return Read(stream, head) && head.Is("RIFF") && stream.read(form.data(), 4) &&
           std::string_view(form.data(), 4) == "WAVE";
}

std::optional<WavFormat> ReadFormat(std::istream& stream)
{
    constexpr int plainSamples = 1;
    constexpr int mostChannels = 2;
    constexpr int mostRate = 192'000;
    std::array<char, 16> fields{};
    if (!stream.read(fields.data(), fields.size())) return {};
    const int kind = qFromLittleEndian<quint16>(fields.data());
    const int channels = qFromLittleEndian<quint16>(fields.data() + 2);
    const auto rate = qFromLittleEndian<qint32>(fields.data() + 4);
    const int bits = qFromLittleEndian<quint16>(fields.data() + 14);
    if (kind != plainSamples || bits != 8 * WavFormat::BytesPerSample) return {};
    if (channels < 1 || channels > mostChannels || rate < 1 || rate > mostRate) return {};
    return WavFormat{channels, rate, 0, 0};
}

} // namespace

std::optional<WavFormat> WavFormat::Of(const std::filesystem::path& file)
{
    std::error_code unreadable;
    // A pipe would wait for its writer.
    if (!std::filesystem::is_regular_file(file, unreadable)) return {};
    std::ifstream stream(file, std::ios::binary);
    if (!IsWav(stream)) return {};

    std::optional<WavFormat> format;
    ChunkHead head{};
    while (Read(stream, head)) {
        const std::streamoff start = stream.tellg();
        if (head.Is("data")) {
            if (!format || head.size == 0) return {};
            format->Offset = start;
            format->Length = head.size;
            return format;
        }
        if (head.Is("fmt ")) format = ReadFormat(stream);
        // Chunks begin at even offsets.
        stream.seekg(start + (std::streamoff{head.size} + head.size % 2));
    }
    return {};
}

#include "packs/Unpacking.h"

#include "packs/ByteReader.h"
#include "toolkit/core/FileCalls.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <limits>
#include <lzma.h>
#include <memory>
#include <unistd.h>

namespace {

constexpr std::size_t startSize = 32;
constexpr char packedHeader = 23;

/// Where the packed bytes of one file are, and what they were packed with.
struct Stream {
    std::uint64_t offset, size;
    lzma_vli method;
    std::string_view properties;
};

/// The higher bits of the first byte tell how many follow; it holds the number's highest bits.
std::uint64_t TakeNumber(ByteReader& header)
{
    const std::uint64_t first = header.TakeNumber(1);
    const int more = std::countl_one(static_cast<std::uint8_t>(first));
    const std::uint64_t low = header.TakeNumber(static_cast<std::size_t>(more));
    return more == 8 ? low : low | (first & (0x7FU >> more)) << (8 * more);
}

void Expect(ByteReader& header, std::string_view bytes)
{
    if (header.Take(bytes.size()) != bytes) throw Damage();
}

/// The one stream of an archive with one file, packed by one coder.
Stream TakeStream(ByteReader& header)
{
    using namespace std::string_view_literals;
    Stream stream{};
    Expect(header, "\6");
    stream.offset = startSize + TakeNumber(header);
    Expect(header, "\1\11");
    stream.size = TakeNumber(header);
    Expect(header, "\0\7\13\1\0\1"sv);
    stream.method = header.Take(1) == "\x21" ? LZMA_FILTER_LZMA2 : LZMA_FILTER_LZMA1;
    Expect(header, stream.method == LZMA_FILTER_LZMA2 ? "\x21" : "\3\1\1");
    stream.properties = header.Take(TakeNumber(header));
    return stream;
}

/// The bytes from that offset on, fewer at the end of the file.
std::string ReadAt(int file, std::uint64_t offset, std::size_t size)
{
    std::string bytes(size, '\0');
    if (offset > std::numeric_limits<off_t>::max() - size) return {};
    const ssize_t count = ::pread(file, bytes.data(), size, static_cast<off_t>(offset));
    Check(count >= 0);
    bytes.resize(static_cast<std::size_t>(count));
    return bytes;
}

std::string Unpacked(int archive, const Stream& packed, std::size_t size)
{
    lzma_filter filters[] = {{packed.method, nullptr}, {LZMA_VLI_UNKNOWN, nullptr}};
    const auto* properties = reinterpret_cast<const std::uint8_t*>(packed.properties.data());
    if (lzma_properties_decode(filters, nullptr, properties, packed.properties.size()) != LZMA_OK) throw Damage();
    const std::unique_ptr<void, decltype(std::free)*> options(filters[0].options, std::free);
    // Nothing there can refer to what lies further back.
    std::uint32_t& window = static_cast<lzma_options_lzma*>(options.get())->dict_size;
    window = std::min(window, static_cast<std::uint32_t>(size));

    // What can't be packed gets hardly longer.
    const std::string input = ReadAt(archive, packed.offset, std::min<std::uint64_t>(packed.size, 2 * size));
    std::string bytes(size, '\0');
    lzma_stream stream = LZMA_STREAM_INIT;
    const std::unique_ptr<lzma_stream, decltype(lzma_end)*> end(&stream, lzma_end);
    stream.next_in = reinterpret_cast<const std::uint8_t*>(input.data());
    stream.avail_in = input.size();
    stream.next_out = reinterpret_cast<std::uint8_t*>(bytes.data());
    stream.avail_out = size;
    if (lzma_raw_decoder(&stream, filters) != LZMA_OK || lzma_code(&stream, LZMA_RUN) == LZMA_DATA_ERROR)
        throw Damage();
    bytes.resize(size - stream.avail_out);
    return bytes;
}

} // namespace

std::string BeginningOf(int file, std::size_t size)
try {
    std::string beginning = ReadAt(file, 0, size);
    if (!beginning.starts_with("7z\xBC\xAF\x27\x1C")) return beginning;
    constexpr std::size_t signatureSize = 12, numberSize = 8;
    ByteReader places{beginning};
    places.Take(signatureSize);
    const std::uint64_t offset = startSize + places.TakeNumber(numberSize), length = places.TakeNumber(numberSize);
    std::string header = ReadAt(file, offset, std::min<std::uint64_t>(length, size));
    if (header.starts_with(packedHeader)) {
        ByteReader parts{std::string_view(header).substr(1)};
        header = Unpacked(file, TakeStream(parts), size);
    }
    ByteReader parts{header};
    Expect(parts, "\1\4");
    return Unpacked(file, TakeStream(parts), size);
} catch (const Damage&) {
    return {};
}

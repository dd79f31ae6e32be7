/// Looks at all packs of a scenery_packs.ini, and for comparison opens the same tiles and reads 64 KiB of each, as
/// given and found by listing all folders: packs_bench FOLDER. Prints the milliseconds of all three, each the least of
/// several.
#include "packs/LookAtPack.h"
#include "toolkit/core/TextEncoding.h"
#include "toolkit/core/TextInputStream.h"

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <iostream>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr int runs = 9;

template <class Run>
double Milliseconds(Run run)
{
    double least = 1e9;
    for (int i = 0; i < runs; ++i) {
        const auto start = std::chrono::steady_clock::now();
        run();
        least = std::min(least,
                         std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    return least;
}

std::vector<fs::path> Tiles(const FolderItem& dossier)
{
    std::vector<fs::path> tiles;
    for (const auto& entry : fs::recursive_directory_iterator(dossier.Path()))
        if (entry.path().extension() == ".dsf") tiles.push_back(entry.path());
    return tiles;
}

std::size_t Read(std::span<const fs::path> tiles)
{
    static std::string bytes(std::size_t{64} << 10, '\0');
    std::size_t count = 0;
    for (const fs::path& tile : tiles) {
        const int file = ::open(tile.c_str(), O_RDONLY);
        count += ::read(file, bytes.data(), bytes.size()) > 0 ? 1 : 0;
        ::close(file);
    }
    return count;
}

} // namespace

int main(int, char** argv)
{
    const FolderItem dossier{fs::absolute(argv[1])};
    const String text =
        Encodings::UTF8.Decode(TextInputStream::Open(FolderItem(dossier.Path() / "scenery_packs.ini")).ReadAll());
    const std::vector<fs::path> tiles = Tiles(dossier);
    std::size_t known = 0;
    const double looking = Milliseconds([&] {
        Progress progress;
        known = static_cast<std::size_t>(std::ranges::count(LookAtPacks(text, dossier, progress), true,
                                                            [](const Pack& pack) { return pack.facts.doubt.empty(); }));
    });
    std::size_t read = 0;
    const double reading = Milliseconds([&] { read = Read(tiles); });
    const double finding = Milliseconds([&] { read = Read(Tiles(dossier)); });
    std::cout << std::min(known, read) << ' ' << looking << ' ' << reading << ' ' << finding << '\n';
}

/// A folder of its own for each test, gone with all it holds when the test ends.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

class TemporaryFolder {
public:
    explicit TemporaryFolder(const std::filesystem::path& place = std::filesystem::temp_directory_path())
    {
        std::string pattern = std::filesystem::canonical(place) / "tarnivel-XXXXXX";
        if (!::mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder");
        path_ = pattern;
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

    /// Makes the folder of that name, and those above it, and gives its path.
    std::filesystem::path Folder(const std::filesystem::path& name) const
    {
        std::filesystem::create_directories(path_ / name);
        return path_ / name;
    }

    /// Writes a file of these bytes, in folders that are made where they are missing, and gives its path.
    std::filesystem::path File(const std::filesystem::path& name, std::string_view bytes = {}) const
    {
        std::filesystem::create_directories((path_ / name).parent_path());
        std::ofstream(path_ / name, std::ios::binary) << bytes;
        return path_ / name;
    }

    /// The bytes of a file; "" for one that isn't there.
    [[nodiscard]] std::string Content(const std::filesystem::path& name) const
    {
        std::ifstream stream(path_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

private:
    std::filesystem::path path_;
};

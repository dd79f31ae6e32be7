/// Treats a file by a table, for treatment.py: the program's seconds without reading and writing, and its peak of
/// memory.
#include "specialA/Treatment.h"
#include "toolkit/core/TextEncoding.h"

#include <chrono>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sys/resource.h>

namespace {

std::string Contents(const char* path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<ReplacementRow> Table(const char* path)
{
    const String table = Encodings::UTF8.Decode(Contents(path));
    std::vector<ReplacementRow> rows;
    for (const StringView line : Split(table, U"\n"))
        if (CountFields(line, U"\t") == 3)
            rows.push_back(
                {String(NthField(line, U"\t", 1)), String(NthField(line, U"\t", 2)), String(NthField(line, U"\t", 3))});
    return rows;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) return 2;
    const String original = Encodings::UTF8.Decode(Contents(argv[1]));
    const std::vector<ReplacementRow> rows = Table(argv[2]);
    const auto start = std::chrono::steady_clock::now();
    const Treatment treated = *Treat(original, rows);
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::cout << took.count() << ' ' << usage.ru_maxrss << ' ' << std::ssize(treated.dest1.value_or(String())) << '\n';
}

/// tarnivel-order: the reordering for scripts. It reads texts, writes one to standard output, and changes no file.
#include "engine/CreerSpack.h"
#include "localisation/Localisation.h"
#include "packs/LookAtPack.h"
#include "toolkit/core/Exceptions.h"
#include "toolkit/core/TextInputStream.h"

#include <cerrno>
#include <clocale>
#include <cstdio>
#include <iostream>
#include <iterator>

namespace {

using namespace Localisation;

enum Status { Agrees = 0, Reported = 1, Refused = 2, WrongUse = 64 };

constexpr std::string_view standardInput = "-";

/// A text that can't be had; the reason is for the user.
struct Refusal {
    String reason;
};

void Say(StringView text) { std::cerr << Encodings::UTF8.Encode(text) << '\n'; }

String ShownName(std::string_view name) { return U"“" + Encodings::UTF8.Decode(name) + U"”"; }

Bytes ReadAll(std::string_view name)
{
    if (name == standardInput) {
        Bytes bytes(std::istreambuf_iterator<char>(std::cin), {});
        if (std::ferror(stdin) != 0) throw Refusal{Encodings::UTF8.Decode(std::generic_category().message(errno))};
        return bytes;
    }
    try {
        return TextInputStream::Open(FolderItem(std::filesystem::absolute(name))).ReadAll();
    } catch (const IOException& error) {
        throw Refusal{error.Message};
    } catch (const std::filesystem::filesystem_error& error) { // of no name, or without a working directory
        throw Refusal{Encodings::UTF8.Decode(error.code().message())};
    }
}

String Read(std::string_view name)
{
    const Bytes bytes = ReadAll(name);
    // The window leaves out what is no text; a script isn't there to see that.
    if (!Encodings::UTF8.IsValidData(bytes)) throw Refusal{Dit_PasUtf8()};
    const String raw = Encodings::UTF8.Decode(bytes);
    const Acceptance acceptance = AcceptSceneryText(raw);
    if (acceptance.accepted) return acceptance.text;
    throw Refusal{ReasonOfRefusal(raw)};
}

/// The text, or nothing once the user has been told why there is none.
std::optional<String> Accepted(std::string_view name)
{
    try {
        return Read(name);
    } catch (const Refusal& refusal) {
        Say(ShownName(name) + U": " + refusal.reason);
        return {};
    }
}

FolderItem FolderOf(std::string_view spack)
{
    return FolderItem(std::filesystem::absolute(spack == standardInput ? "x" : spack).parent_path());
}

Status Write(StringView text, Status status)
{
    std::cout << Encodings::UTF8.Encode(text) << std::flush;
    if (std::cout) return status;
    Say(Txt_ErreurEcritFich());
    return Refused;
}

Status Order(std::string_view modelName, std::string_view spackName, bool check)
{
    std::optional<String> model = Accepted(modelName), spack = Accepted(spackName);
    if (!model || !spack) return Refused;
    SceneryTexts texts{std::move(*model), std::move(*spack), {}, {}, {}};
    Status status = Agrees;
    CreerSpack(texts, FolderOf(spackName), [&status](const String& message, const String& explanation) {
        status = Reported;
        Say(message + (explanation.empty() ? U"" : U"\n" + explanation) + U"\n");
    });
    if (texts.TextDestSpack == ErrorMarker) return Refused;
    return check ? status : Write(texts.TextDestSpack, status);
}

Status Propose(std::string_view spackName)
{
    const std::optional<String> spack = Accepted(spackName);
    if (!spack) return Refused;
    Progress progress;
    const Proposal proposal = ProposeModel(*spack, LookAtPacks(*spack, FolderOf(spackName), progress));
    Say(proposal.report);
    return Write(proposal.model, proposal.complete ? Agrees : Reported);
}

bool IsName(std::string_view argument) { return argument == standardInput || !argument.starts_with('-'); }

Status Run(std::span<const std::string_view> arguments)
{
    const std::string_view option = arguments.empty() || IsName(arguments[0]) ? "" : arguments[0];
    const auto names = arguments.subspan(option.empty() ? 0 : 1);
    const bool areNames = std::ranges::all_of(names, IsName) && std::ranges::count(names, standardInput) < 2;
    if (option == "--help" && names.empty()) return Write(Txt_OrdreAide() + U"\n", Agrees);
    if (option == "--version" && names.empty()) return Write(U"tarnivel-order " VERSION "\n", Agrees);
    if (option == "--propose" && names.size() == 1 && areNames) return Propose(names[0]);
    if ((option.empty() || option == "--check") && names.size() == 2 && areNames)
        return Order(names[0], names[1], !option.empty());
    Say(Txt_OrdreAide());
    return WrongUse;
}

} // namespace

int main(int argc, char** argv)
{
    std::setlocale(LC_ALL, ""); // the system's reasons in the user's language
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    try {
        return Run(arguments);
    } catch (const std::exception& error) {
        Say(Encodings::UTF8.Decode(error.what()));
        return Refused;
    }
}

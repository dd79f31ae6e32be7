#include "support/TextFiles.h"

#include "support/FileHelpers.h"
#include "support/Fncts.h"
#include "support/TextHelpers.h"
#include "toolkit/core/TextInputStream.h"
#include "toolkit/core/TextOutputStream.h"

namespace Fncts {

String TextOfBytes(const Bytes& data)
{
    return DefAppEncod.Decode(DefAppEncod.IsValidData(data) ? data : NettoiBadEncod(data, DefAppEncod));
}

String LireFichier(const std::optional<FolderItem>& fichier)
{
    if (!PasNil_Existe_Alias(fichier, true)) return {};
    try {
        return TextOfBytes(TextInputStream::Open(*fichier).ReadAll());
    } catch (const std::exception&) {
        return {};
    }
}

bool SauvFichier(const FolderItem& f, StringView text)
{
    try {
        const Bytes data = DefAppEncod.Encode(text);
        TextOutputStream stream = TextOutputStream::Create(f, std::ssize(data));
        stream.Write(data);
        stream.Close();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

} // namespace Fncts

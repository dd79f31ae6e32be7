/// The name under which the old file is kept.
#pragma once

#include "toolkit/core/System.h"

/// `name` with the moment between its base and its extension (which has its dot, or is empty), as in
/// "scenery_packs_2024-02-25_10'51'07.ini"; both in canonical form.
String ArchiveName(StringView name, StringView extension, const DateTime& moment);

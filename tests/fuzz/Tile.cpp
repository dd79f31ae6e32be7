#include "packs/Tile.h"

#include "packs/LookAtPack.h"
#include "tests/TemporaryFolder.h"
#include "tests/fuzz/Input.h"

#include <gtest/gtest.h>

void Fuzz(Input& input)
{
    static const TemporaryFolder temporary;
    const Bytes tile = input.Piece(), rest = input.ConsumeRemainingBytesAsString();
    const PackFacts::Tile kind = TileKindOf(tile);
    if (kind != PackFacts::Tile::None) EXPECT_EQ(TileKindOf(tile + rest), kind) << "what stands behind the head counts";

    temporary.File("p/Earth nav data/+40+000/a.dsf", tile);
    Progress progress;
    const PackFacts facts = LookAtPacks({}, FolderItem(temporary.Path()), progress).front().facts;
    EXPECT_NE(facts.tile == PackFacts::Tile::None, facts.doubt.empty());
    if (kind != PackFacts::Tile::None) EXPECT_EQ(facts.tile, kind);
}

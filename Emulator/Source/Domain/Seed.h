// The demo player's stash, as the stash panel's default identity finds it: provider "anonymous",
// ticket "demo_account", container kind "stash", a 10 x 8 grid.
#pragma once

namespace quorvel::emulator
{
	class Database;
	class ItemCatalog;

	/** Fills the demo stash with a few stacks, once per database: a note in the meta table keeps a
	    later run from refilling a stash the player has emptied. A stash that already holds stacks is
	    left alone, and so is a demo stack whose item the catalog lacks or limits below its quantity.
	    Returns how many stacks were added. */
	int seedDemoStash(Database& database, const ItemCatalog& catalog);
}

// The demo player's stash, as the stash panel's default identity finds it: provider "anonymous",
// ticket "demo_account", container kind "stash", a 10 x 8 grid.
#pragma once

namespace quorvel::emulator
{
	class Database;
	class ItemCatalog;

	/** Fills the demo stash with a few stacks, unless it holds some already (a file database keeps
	    them between runs). A demo stack whose item the catalog lacks or limits below its quantity is
	    left out. Returns how many stacks were added. */
	int seedDemoStash(Database& database, const ItemCatalog& catalog);
}

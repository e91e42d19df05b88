// What the platform stores, as plain values.
#pragma once

#include <string>

namespace quorvel::emulator
{
	/** Someone signed in through a provider; the subject is who the provider says they are. */
	struct Player
	{
		std::string id;
		std::string provider;
		std::string subject;
	};

	struct Container
	{
		std::string id;
		std::string playerId;
		std::string kind;
		std::string layout; // "grid" or "slots"
		int width = 0;      // grid only
		int height = 0;     // grid only
		int slotCount = 0;  // slots only

		bool isSlots() const { return layout == "slots"; }
	};

	struct Stack
	{
		std::string id;
		std::string containerId;
		std::string itemId;
		int quantity = 0;
		int x = -1;
		int y = -1;
		int slotIndex = -1;
		bool rotated = false;
		int baseWidth = 1;
		int baseHeight = 1;

		/** Cells covered in a grid: the footprint, turned when rotated. */
		int width() const { return rotated ? baseHeight : baseWidth; }
		int height() const { return rotated ? baseWidth : baseHeight; }
	};
}

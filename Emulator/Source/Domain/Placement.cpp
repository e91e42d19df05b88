#include "Domain/Placement.h"

#include "Api/ApiError.h"

#include <optional>
#include <set>

namespace quorvel::emulator
{
	namespace
	{
		std::string sizeText(int w, int h)
		{
			return std::to_string(w) + "x" + std::to_string(h);
		}

		std::string cellText(int x, int y)
		{
			return std::to_string(x) + ", " + std::to_string(y);
		}

		Placement placeInSlots(const Container& container, const std::vector<Stack>& others, const Json* to)
		{
			std::set<int> taken;
			for (const Stack& other : others)
			{
				taken.insert(other.slotIndex);
			}
			if (to)
			{
				const std::optional<int> slot = optionalInt(*to, "slot_index");
				if (!slot)
				{
					throw unprocessable("invalid_placement", "a slot container takes \"to\": {\"slot_index\"}");
				}
				if (*slot < 0 || *slot >= container.slotCount)
				{
					throw unprocessable("out_of_bounds", "slot " + std::to_string(*slot) + " is outside the container's "
						+ std::to_string(container.slotCount) + " slots");
				}
				if (taken.contains(*slot))
				{
					throw conflict("cell_occupied", "slot " + std::to_string(*slot) + " is occupied");
				}
				return Placement{.slotIndex = *slot};
			}
			for (int slot = 0; slot < container.slotCount; ++slot)
			{
				if (!taken.contains(slot))
				{
					return Placement{.slotIndex = slot};
				}
			}
			throw conflict("container_full", "every slot is occupied");
		}

		class Occupancy
		{
		public:
			Occupancy(const Container& container, const std::vector<Stack>& others)
				: width(container.width), height(container.height), cells(static_cast<size_t>(width) * height, false)
			{
				for (const Stack& other : others)
				{
					for (int y = other.y; y < other.y + other.height(); ++y)
					{
						for (int x = other.x; x < other.x + other.width(); ++x)
						{
							if (inside(x, y))
							{
								cells[static_cast<size_t>(y) * width + x] = true;
							}
						}
					}
				}
			}

			bool fitsInside(int x, int y, int w, int h) const
			{
				// Subtracting keeps a huge requested cell from overflowing.
				return x >= 0 && y >= 0 && x <= width - w && y <= height - h;
			}

			bool isFree(int x, int y, int w, int h) const
			{
				for (int row = y; row < y + h; ++row)
				{
					for (int column = x; column < x + w; ++column)
					{
						if (cells[static_cast<size_t>(row) * width + column])
						{
							return false;
						}
					}
				}
				return true;
			}

			std::optional<Placement> firstFit(int w, int h, bool rotated) const
			{
				for (int y = 0; y + h <= height; ++y)
				{
					for (int x = 0; x + w <= width; ++x)
					{
						if (isFree(x, y, w, h))
						{
							return Placement{.x = x, .y = y, .rotated = rotated};
						}
					}
				}
				return std::nullopt;
			}

		private:
			bool inside(int x, int y) const { return x >= 0 && y >= 0 && x < width && y < height; }

			int width;
			int height;
			std::vector<bool> cells;
		};

		Placement placeInGrid(const Container& container, const std::vector<Stack>& others, const Stack& stack, const Json* to)
		{
			const Occupancy occupancy(container, others);
			if (to)
			{
				const std::optional<int> x = optionalInt(*to, "x");
				const std::optional<int> y = optionalInt(*to, "y");
				if (!x || !y)
				{
					throw unprocessable("invalid_placement", "a grid container takes \"to\": {\"x\", \"y\"}");
				}
				const bool rotated = optionalBool(*to, "rotated").value_or(stack.rotated);
				const int w = rotated ? stack.baseHeight : stack.baseWidth;
				const int h = rotated ? stack.baseWidth : stack.baseHeight;
				if (!occupancy.fitsInside(*x, *y, w, h))
				{
					throw unprocessable("out_of_bounds", sizeText(w, h) + " stack at cell " + cellText(*x, *y)
						+ " does not fit in the " + sizeText(container.width, container.height) + " grid");
				}
				if (!occupancy.isFree(*x, *y, w, h))
				{
					throw conflict("cell_occupied", "cell " + cellText(*x, *y) + " is occupied");
				}
				return Placement{.x = *x, .y = *y, .rotated = rotated};
			}
			// Keep the stack's own orientation if it fits anywhere; turn it only as a last resort.
			if (const auto fit = occupancy.firstFit(stack.width(), stack.height(), stack.rotated))
			{
				return *fit;
			}
			if (stack.baseWidth != stack.baseHeight)
			{
				if (const auto fit = occupancy.firstFit(stack.height(), stack.width(), !stack.rotated))
				{
					return *fit;
				}
			}
			throw conflict("container_full", "no free space fits a " + sizeText(stack.width(), stack.height()) + " stack");
		}
	}

	Placement placeStack(const Container& container, const std::vector<Stack>& others, const Stack& stack, const Json* to)
	{
		return container.isSlots() ? placeInSlots(container, others, to) : placeInGrid(container, others, stack, to);
	}

	void applyPlacement(Stack& stack, const Placement& placement)
	{
		stack.x = placement.x;
		stack.y = placement.y;
		stack.slotIndex = placement.slotIndex;
		stack.rotated = placement.rotated;
	}
}

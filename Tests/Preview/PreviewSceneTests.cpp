// The preview's default scene as the page receives it: the PNG bytes of a frame, decoded and
// checked at points whose colour the scene fixes, against a fresh emulator in this process.
#include "Components/CanvasPanel.h"
#include "DemoCharacterStrip.h"
#include "DemoStashScreen.h"
#include "PreviewScene.h"
#include "QuorvelStashPanel.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>
#include <png.h>

#include <cstdlib>
#include <vector>

namespace
{
	struct FDecodedFrame
	{
		int32 Width = 0;
		int32 Height = 0;
		std::vector<uint8> Rgba;

		FColor At(int32 X, int32 Y) const
		{
			const uint8* Pixel = &Rgba[(size_t(Y) * Width + X) * 4];
			return FColor(Pixel[0], Pixel[1], Pixel[2], Pixel[3]);
		}

		/** How many pixels of a rectangle are within Tolerance of Colour on every channel. */
		int32 Count(const FColor& Colour, int32 Left, int32 Top, int32 Right, int32 Bottom, int32 Tolerance = 0) const
		{
			int32 Found = 0;
			for (int32 Y = FMath::Max(Top, 0); Y < FMath::Min(Bottom, Height); ++Y)
			{
				for (int32 X = FMath::Max(Left, 0); X < FMath::Min(Right, Width); ++X)
				{
					const FColor Pixel = At(X, Y);
					Found += std::abs(Pixel.R - Colour.R) <= Tolerance && std::abs(Pixel.G - Colour.G) <= Tolerance && std::abs(Pixel.B - Colour.B) <= Tolerance ? 1 : 0;
				}
			}
			return Found;
		}
	};

	FDecodedFrame Decode(const TArray<uint8>& Png)
	{
		FDecodedFrame Frame;
		png_image Image{};
		Image.version = PNG_IMAGE_VERSION;
		if (!png_image_begin_read_from_memory(&Image, Png.GetData(), size_t(Png.Num())))
		{
			ADD_FAILURE() << "the frame is not a PNG";
			return Frame;
		}
		Image.format = PNG_FORMAT_RGBA;
		Frame.Width = int32(Image.width);
		Frame.Height = int32(Image.height);
		Frame.Rgba.resize(PNG_IMAGE_SIZE(Image));
		EXPECT_TRUE(png_image_finish_read(&Image, nullptr, Frame.Rgba.data(), 0, nullptr));
		return Frame;
	}

	/** A rectangle of the frame, in pixels. */
	struct FPixelBox
	{
		FVector2D Min;
		FVector2D Max;

		FVector2D GetCenter() const
		{
			return (Min + Max) * 0.5;
		}
	};

	/** A cell's square in frame pixels, from the panel's own last layout (the window sits at the desktop's origin). */
	FPixelBox CellBox(const UQuorvelStashPanel* Panel, int32 X, int32 Y, int32 Width = 1, int32 Height = 1)
	{
		const FProperty* Property = Panel->GetClass()->FindPropertyByName(FName(TEXT("GridCanvas")));
		const UCanvasPanel* Canvas = Property->ContainerPtrToValuePtr<TObjectPtr<UCanvasPanel>>(Panel)->Get();
		const FGeometry& Geometry = Canvas->GetCachedGeometry();
		const double Pitch = Panel->CellSize;
		return FPixelBox{ FVector2D(Geometry.LocalToAbsolute(FVector2D(X * Pitch, Y * Pitch))),
			FVector2D(Geometry.LocalToAbsolute(FVector2D((X + Width) * Pitch, (Y + Height) * Pitch))) };
	}

	class FPreviewSceneTest : public ::testing::Test
	{
	protected:
		static FPreviewOptions Options()
		{
			FPreviewOptions Options;
			Options.EmulatorDatabase = ":memory:";
			Options.CellColour = FLinearColor(FColor(0x33, 0x66, 0xCC));
			Options.AccentColour = FLinearColor(FColor(0xFF, 0x88, 0x00));
			return Options;
		}
	};

	TEST_F(FPreviewSceneTest, TheDefaultFrameShowsCellsIconsTitleAndTheCharacterWhereTheLayoutPutsThem)
	{
		FPreviewScene Scene(Options());
		ASSERT_TRUE(Scene.WaitUntilLoaded(60.0f));
		Scene.RenderFrame();
		const FDecodedFrame Frame = Decode(Scene.GetFramePng());
		const UDemoStashScreen* Screen = Scene.GetScreen();
		ASSERT_GT(Frame.Width, 1000);

		// An empty cell, the bottom-right one, in the colour the options gave cells.
		const FPixelBox Empty = CellBox(Screen->Stash, 9, 7);
		EXPECT_EQ(Frame.At(int32(Empty.GetCenter().X), int32(Empty.GetCenter().Y)), FColor(0x33, 0x66, 0xCC, 255));

		// The rifle, four cells by two from the corner, drawn with its icon: the barrel crosses its middle.
		const FPixelBox Rifle = CellBox(Screen->Stash, 0, 0, 4, 2);
		EXPECT_EQ(Frame.At(int32(Rifle.GetCenter().X), int32(Rifle.GetCenter().Y)), FColor(60, 64, 70, 255));

		// The title above the grid, in the accent colour.
		const FPixelBox Grid = CellBox(Screen->Stash, 0, 0, 10, 8);
		EXPECT_GT(Frame.Count(FColor(0xFF, 0x88, 0x00), int32(Grid.Min.X), int32(Grid.Min.Y) - 60, int32(Grid.Max.X), int32(Grid.Min.Y) - 20, 8), 20);

		// The character's first slot holds two medkits: the red box and the white cross of their icon.
		const UDemoCharacterStrip* Strip = Screen->Strip;
		const FGeometry& Slots = Strip->GetSlotCanvas()->GetCachedGeometry();
		const FVector2D First = FVector2D(Slots.LocalToAbsolute(Strip->SlotPosition(0)));
		const FVector2D Last = FVector2D(Slots.LocalToAbsolute(Strip->SlotPosition(7)));
		const auto InSlot = [&Frame, Strip](const FVector2D& Corner, const FColor& Colour)
		{
			return Frame.Count(Colour, int32(Corner.X), int32(Corner.Y), int32(Corner.X + Strip->SlotSize), int32(Corner.Y + Strip->SlotSize));
		};
		EXPECT_GT(InSlot(First, FColor(200, 40, 40)), 50);
		EXPECT_GT(InSlot(First, FColor(245, 245, 245)), 50);
		EXPECT_EQ(InSlot(Last, FColor(200, 40, 40)), 0);
	}
}

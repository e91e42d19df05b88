// Icons loaded from the project's Content directory the first time a soft reference asks for them.
#include "Components/Border.h"
#include "Components/CanvasPanel.h"
#include "Components/Image.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "StashPanelHarness.h"
#include "StashPanelIconRows.h"

#include <filesystem>

using namespace StashPanelTest;

namespace
{
	// A 1 x 1 opaque white PNG.
	const uint8 OnePixelPng[] = {
		0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A, 0x00, 0x00, 0x00, 0x0D, 0x49, 0x48, 0x44, 0x52,
		0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x01, 0x08, 0x02, 0x00, 0x00, 0x00, 0x90, 0x77, 0x53,
		0xDE, 0x00, 0x00, 0x00, 0x0C, 0x49, 0x44, 0x41, 0x54, 0x08, 0xD7, 0x63, 0xF8, 0xFF, 0xFF, 0x3F,
		0x00, 0x05, 0xFE, 0x02, 0xFE, 0xDC, 0xCC, 0x59, 0xE7, 0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4E,
		0x44, 0xAE, 0x42, 0x60, 0x82,
	};

	class FStashPanelIcons : public FStashPanelTest
	{
	protected:
		virtual void SetUp() override
		{
			// A project of the test's own, so that /Game/ paths load from a Content directory it controls.
			PreviousProject = FPaths::IsProjectFilePathSet() ? FPaths::GetProjectFilePath() : FString();
			ProjectDir = std::filesystem::temp_directory_path() / ("QuorvelIconTest" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()));
			std::filesystem::create_directories(ProjectDir / "Content" / "Icons");
			FPaths::SetProjectFilePath(FString(UTF8_TO_TCHAR((ProjectDir / "IconTest.uproject").string().c_str())));
			TArray<uint8> Png(OnePixelPng, UE_ARRAY_COUNT(OnePixelPng));
			ASSERT_TRUE(FFileHelper::SaveArrayToFile(Png, *(FPaths::ProjectContentDir() + TEXT("Icons/T_Scroll.png"))));

		}

		virtual void TearDown() override
		{
			FStashPanelTest::TearDown();
			if (!PreviousProject.IsEmpty())
			{
				FPaths::SetProjectFilePath(PreviousProject);
			}
			std::error_code Ignored;
			std::filesystem::remove_all(ProjectDir, Ignored);
		}

		/** A panel whose item table has one row, named RowName, of type TRow. */
		template<typename TRow>
		UQuorvelStashPanel* PanelWithRow(const TCHAR* RowName, const TRow& Row)
		{
			UDataTable* Table = NewObject<UDataTable>(GetTransientPackage());
			Table->RowStruct = TRow::StaticStruct();
			Table->AddRow(FName(RowName), Row);
			UQuorvelStashPanel* Panel = MakePanel();
			*FindPropertyChecked(Panel->GetClass(), TEXT("ItemTable"))->ContainerPtrToValuePtr<TObjectPtr<UDataTable>>(Panel) = Table;
			return Panel;
		}

		/** Draws one stack of ItemId and returns the texture its image shows, or null when it got the text label. */
		static UObject* IconDrawnFor(UQuorvelStashPanel* Panel, const TCHAR* ItemId)
		{
			FQuorvelContainer Container;
			FQuorvelItemInstance Stack;
			Stack.ItemId = FName(ItemId);
			Stack.X = 0;
			Stack.Y = 0;
			Container.Items.Add(Stack);
			Panel->ShowContainer(Container);

			const UBorder* Border = CastChecked<UBorder>(ValueOf<TArray<TObjectPtr<UWidget>>>(Panel, TEXT("ItemWidgets"))[0].Get());
			const UImage* Image = Cast<UImage>(Border->GetContent());
			return Image ? Image->GetBrush().GetResourceObject() : nullptr;
		}

		std::filesystem::path ProjectDir;
		FString PreviousProject;
	};

	TEST_F(FStashPanelIcons, ASoftReferenceLoadsItsTextureFromTheProjectContentOnFirstUseAndAMissingOneGivesNoIcon)
	{
		FScriptStructRow Row;
		Row.ItemIcon_2_0123456789abcdef0123456789ABCDEF = TSoftObjectPtr<UTexture2D>(FSoftObjectPath(TEXT("/Game/Icons/T_Scroll.T_Scroll")));
		UQuorvelStashPanel* Panel = PanelWithRow(TEXT("Scroll"), Row);
		ASSERT_EQ(FSoftObjectPath(TEXT("/Game/Icons/T_Scroll.T_Scroll")).ResolveObject(), nullptr);

		UTexture2D* Loaded = Cast<UTexture2D>(IconDrawnFor(Panel, TEXT("Scroll")));
		ASSERT_NE(Loaded, nullptr);
		EXPECT_EQ(Loaded->GetSizeX(), 1);
		EXPECT_EQ(FSoftObjectPath(TEXT("/Game/Icons/T_Scroll.T_Scroll")).ResolveObject(), Loaded);
		// Found in memory the second time; the table still holds only the path.
		EXPECT_EQ(IconDrawnFor(Panel, TEXT("Scroll")), Loaded);

		FScriptStructRow Missing;
		Missing.ItemIcon_2_0123456789abcdef0123456789ABCDEF = TSoftObjectPtr<UTexture2D>(FSoftObjectPath(TEXT("/Game/Icons/T_Nothing.T_Nothing")));
		EXPECT_EQ(IconDrawnFor(PanelWithRow(TEXT("Scroll"), Missing), TEXT("Scroll")), nullptr);
	}
}

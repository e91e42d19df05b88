// Icons from the project's item table: the row named by the item id, the first icon field of the row
// structure by its loosely matched name, and a text label whenever that finds no texture.
#include "QuorvelStashPanelTestSupport.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "Components/Border.h"
#include "Components/Image.h"
#include "QuorvelStashPanelTestRows.h"

BEGIN_DEFINE_SPEC(FQuorvelStashPanelIconTests, "Quorvel.UI.Icons", UE::Quorvel::Tests::TestFlags)
	UE::Quorvel::Tests::FTestPanels Panels;
	UTexture2D* Sword = nullptr;
	UTexture2D* Shield = nullptr;

	/** A panel whose item table holds one row, named RowName, of RowType. */
	template <typename RowType>
	UQuorvelStashPanel* PanelWithRow(const TCHAR* RowName, const RowType& Row)
	{
		UDataTable* Table = NewObject<UDataTable>(GetTransientPackage());
		Table->RowStruct = RowType::StaticStruct();
		Table->AddRow(FName(RowName), Row);
		UQuorvelStashPanel* Panel = Panels.Make();
		UE::Quorvel::Tests::SetItemTable(Panel, Table);
		return Panel;
	}

	/** Draws one stack of ItemId and returns the texture its image shows, or null when it got the text label. */
	UObject* IconDrawnFor(UQuorvelStashPanel* Panel, const TCHAR* ItemId)
	{
		Panel->ShowContainer(UE::Quorvel::Tests::MakeContainer(TEXT("grid"), { UE::Quorvel::Tests::MakeStack(ItemId, 0, 0) }));
		const TArray<TObjectPtr<UWidget>>& Drawn = UE::Quorvel::Tests::ItemWidgetsOf(Panel);
		const UBorder* Border = Drawn.Num() == 1 ? Cast<UBorder>(Drawn[0].Get()) : nullptr;
		if (!TestNotNull(TEXT("The stack's border"), Border))
		{
			return nullptr;
		}
		const UImage* Image = Cast<UImage>(Border->GetContent());
		TestTrue(TEXT("An image or the text label"), Image != nullptr || Cast<UTextBlock>(Border->GetContent()) != nullptr);
		return Image ? Image->GetBrush().GetResourceObject() : nullptr;
	}
END_DEFINE_SPEC(FQuorvelStashPanelIconTests)

void FQuorvelStashPanelIconTests::Define()
{
	BeforeEach([this]
	{
		// Referenced by the table rows from here on, which the rooted panels reference.
		Sword = NewObject<UTexture2D>(GetTransientPackage());
		Shield = NewObject<UTexture2D>(GetTransientPackage());
	});

	AfterEach([this]
	{
		Panels.Reset();
	});

	It("finds the row whatever the letter case of the item id, and takes the first icon field in declaration order", [this]
	{
		FQuorvelTestThumbnailFirstRow Row;
		Row.Thumbnail = Sword;
		Row.Icon = Shield;
		UQuorvelStashPanel* Panel = PanelWithRow(TEXT("sword"), Row);
		TestTrue(TEXT("SWORD shows the thumbnail"), IconDrawnFor(Panel, TEXT("SWORD")) == Sword);
		TestNull(TEXT("Axe, which has no row"), IconDrawnFor(Panel, TEXT("Axe")));
		TestNull(TEXT("The empty item id"), IconDrawnFor(Panel, TEXT("")));
	});

	It("ends the search without an icon when the first icon field is empty", [this]
	{
		FQuorvelTestThumbnailFirstRow Row;
		Row.Icon = Shield;
		TestNull(TEXT("Icon drawn"), IconDrawnFor(PanelWithRow(TEXT("Shield"), Row), TEXT("Shield")));
	});

	It("passes over fields that cannot hold a texture and names that only contain an icon name", [this]
	{
		FQuorvelTestPassedOverRow Row;
		Row.Icon = Sword->GetPathName();
		Row.Item_Icon = Sword->GetFName();
		Row.Thumbnail = Sword;
		Row.Icon_Small = Sword;
		Row.Image = Shield;
		TestTrue(TEXT("The image field's texture"), IconDrawnFor(PanelWithRow(TEXT("Shield"), Row), TEXT("Shield")) == Shield);
	});

	It("resolves a soft reference under a script structure's suffixed member name", [this]
	{
		FQuorvelTestSuffixedSoftRow Row;
		Row.ItemIcon_2_0123456789abcdef0123456789ABCDEF = TSoftObjectPtr<UTexture2D>(FSoftObjectPath(Sword->GetPathName()));
		TestTrue(TEXT("The referenced texture"), IconDrawnFor(PanelWithRow(TEXT("Sword"), Row), TEXT("Sword")) == Sword);
		TestNull(TEXT("An empty soft reference"), IconDrawnFor(PanelWithRow(TEXT("Sword"), FQuorvelTestSuffixedSoftRow()), TEXT("Sword")));
	});

	It("gives no icon when the first matching field holds something other than a texture", [this]
	{
		FQuorvelTestObjectIconRow Row;
		Row.Icon = NewObject<UDataTable>(GetTransientPackage());
		Row.Image = Shield;
		TestNull(TEXT("Icon drawn"), IconDrawnFor(PanelWithRow(TEXT("Shield"), Row), TEXT("Shield")));
	});

	It("walks a derived row structure's own fields, then its base's", [this]
	{
		FQuorvelTestDerivedIconRow Row;
		Row.Icon = Sword;
		Row.Image = Shield;
		TestTrue(TEXT("The derived structure's image"), IconDrawnFor(PanelWithRow(TEXT("Shield"), Row), TEXT("Shield")) == Shield);
		FQuorvelTestPlainDerivedRow Plain;
		Plain.Description = TEXT("A sword");
		Plain.Icon = Sword;
		TestTrue(TEXT("The base structure's icon"), IconDrawnFor(PanelWithRow(TEXT("Sword"), Plain), TEXT("Sword")) == Sword);
	});

	It("labels every stack when the panel has no item table", [this]
	{
		TestNull(TEXT("Icon drawn"), IconDrawnFor(Panels.Make(), TEXT("Sword")));
	});
}

#endif

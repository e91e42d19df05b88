#include "Blueprint/UserWidget.h"
#include "Blueprint/WidgetTree.h"
#include "Components/Border.h"
#include "Components/BorderSlot.h"
#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"
#include "Components/Image.h"
#include "Components/SizeBox.h"
#include "Components/SizeBoxSlot.h"
#include "Components/TextBlock.h"
#include "Components/VerticalBox.h"
#include "Components/VerticalBoxSlot.h"
#include "Engine/Texture2D.h"
#include "TestUserWidget.h"

#include <gtest/gtest.h>

class WidgetDefaultsTest : public testing::Test
{
protected:
	void SetUp() override
	{
		Owner = CreateWidget<UTestUserWidget>(nullptr);
		Owner->AddToRoot();
	}

	void TearDown() override
	{
		Owner->RemoveFromRoot();
		CollectGarbage();
	}

	template <typename WidgetT>
	WidgetT* Make()
	{
		return Owner->WidgetTree->ConstructWidget<WidgetT>(WidgetT::StaticClass());
	}

	UTestUserWidget* Owner = nullptr;
};

TEST_F(WidgetDefaultsTest, EveryWidgetStartsVisibleWithAnIdentityRenderTransformAboutItsCentre)
{
	UBorder* Border = Make<UBorder>();
	EXPECT_EQ(Border->GetVisibility(), ESlateVisibility::Visible);
	EXPECT_TRUE(Border->RenderTransform.IsIdentity());
	EXPECT_EQ(Border->RenderTransformPivot, FVector2D(0.5, 0.5));
	EXPECT_EQ(Border->GetRenderOpacity(), 1.0f);
	EXPECT_TRUE(Border->ToolTipText.IsEmpty());
	EXPECT_EQ(Border->Slot, nullptr);
	EXPECT_EQ(Border->GetParent(), nullptr);
}

TEST_F(WidgetDefaultsTest, UserWidgetsAndTextLetTheirChildrenBeHitButNotThemselves)
{
	EXPECT_EQ(Owner->GetVisibility(), ESlateVisibility::SelfHitTestInvisible);
	EXPECT_EQ(Make<UTextBlock>()->GetVisibility(), ESlateVisibility::SelfHitTestInvisible);
	EXPECT_EQ(Make<UImage>()->GetVisibility(), ESlateVisibility::Visible);
	EXPECT_FALSE(Owner->IsDesignTime());
}

TEST_F(WidgetDefaultsTest, BorderPadsFourAcrossAndTwoDownAndFillsWithAWhitePlainBrush)
{
	UBorder* Border = Make<UBorder>();
	EXPECT_EQ(Border->Padding, FMargin(4.0f, 2.0f, 4.0f, 2.0f));
	EXPECT_EQ(Border->HorizontalAlignment, HAlign_Fill);
	EXPECT_EQ(Border->VerticalAlignment, VAlign_Fill);
	EXPECT_EQ(Border->GetBrushColor(), FLinearColor::White);
	EXPECT_EQ(Border->ContentColorAndOpacity, FLinearColor::White);
	EXPECT_EQ(Border->Background.DrawAs, ESlateBrushDrawType::Image);
	EXPECT_EQ(Border->Background.GetResourceObject(), nullptr);

	UBorderSlot* ContentSlot = Cast<UBorderSlot>(Border->SetContent(Make<UImage>()));
	ASSERT_NE(ContentSlot, nullptr);
	EXPECT_EQ(ContentSlot->GetPadding(), Border->Padding);
	ContentSlot->SetPadding(FMargin(1.0f));
	EXPECT_EQ(Border->Padding, FMargin(1.0f));
}

TEST_F(WidgetDefaultsTest, CanvasSlotsStartAtTheOriginOneHundredByThirtyAnchoredTopLeft)
{
	UCanvasPanel* Canvas = Make<UCanvasPanel>();
	UCanvasPanelSlot* Slot = Canvas->AddChildToCanvas(Make<UImage>());
	ASSERT_NE(Slot, nullptr);
	EXPECT_EQ(Slot->GetOffsets(), FMargin(0.0f, 0.0f, 100.0f, 30.0f));
	EXPECT_EQ(Slot->GetPosition(), FVector2D(0.0, 0.0));
	EXPECT_EQ(Slot->GetSize(), FVector2D(100.0, 30.0));
	EXPECT_EQ(Slot->GetAnchors(), FAnchors(0.0f, 0.0f));
	EXPECT_EQ(Slot->GetAlignment(), FVector2D(0.0, 0.0));
	EXPECT_FALSE(Slot->GetAutoSize());
	EXPECT_EQ(Slot->GetZOrder(), 0);
}

TEST_F(WidgetDefaultsTest, TextIsWhiteBoldTwentyFourPointLeftJustifiedAndUnwrapped)
{
	UTextBlock* Text = Make<UTextBlock>();
	EXPECT_EQ(Text->GetFont().Size, 24.0f);
	EXPECT_EQ(Text->GetFont().LetterSpacing, 0);
	EXPECT_EQ(Text->GetFont().TypefaceFontName, FName(TEXT("Bold")));
	EXPECT_TRUE(Text->GetColorAndOpacity().IsColorSpecified());
	EXPECT_EQ(Text->GetColorAndOpacity().GetSpecifiedColor(), FLinearColor::White);
	EXPECT_EQ(Text->GetJustification(), ETextJustify::Left);
	EXPECT_FALSE(Text->AutoWrapText);
	EXPECT_TRUE(Text->GetText().IsEmpty());
}

TEST_F(WidgetDefaultsTest, SetFontKeepsWhatTheCallerCopiedFromGetFont)
{
	UTextBlock* Text = Make<UTextBlock>();
	FSlateFontInfo Font = Text->GetFont();
	Font.Size = 15.0f;
	Font.LetterSpacing = 220;
	Text->SetFont(Font);
	EXPECT_EQ(Text->GetFont().Size, 15.0f);
	EXPECT_EQ(Text->GetFont().LetterSpacing, 220);
	EXPECT_EQ(Text->GetFont().TypefaceFontName, FName(TEXT("Bold")));
}

TEST_F(WidgetDefaultsTest, VerticalBoxAndSizeBoxSlotsFillWithoutPaddingAndTakeOnlyWhatTheyNeed)
{
	UVerticalBoxSlot* BoxSlot = Make<UVerticalBox>()->AddChildToVerticalBox(Make<UImage>());
	ASSERT_NE(BoxSlot, nullptr);
	EXPECT_EQ(BoxSlot->GetPadding(), FMargin(0.0f));
	EXPECT_EQ(BoxSlot->GetHorizontalAlignment(), HAlign_Fill);
	EXPECT_EQ(BoxSlot->GetVerticalAlignment(), VAlign_Fill);
	EXPECT_EQ(BoxSlot->GetSize().SizeRule, ESlateSizeRule::Automatic);

	USizeBox* SizeBox = Make<USizeBox>();
	EXPECT_FALSE(SizeBox->bOverride_WidthOverride);
	EXPECT_FALSE(SizeBox->bOverride_HeightOverride);
	USizeBoxSlot* SizeSlot = Cast<USizeBoxSlot>(SizeBox->AddChild(Make<UImage>()));
	ASSERT_NE(SizeSlot, nullptr);
	EXPECT_EQ(SizeSlot->GetPadding(), FMargin(0.0f));
	EXPECT_EQ(SizeSlot->GetHorizontalAlignment(), HAlign_Fill);
}

TEST_F(WidgetDefaultsTest, ImageIsAWhiteThirtyTwoUnitRectangleUntilGivenATexture)
{
	UImage* Image = Make<UImage>();
	EXPECT_EQ(Image->ColorAndOpacity, FLinearColor::White);
	EXPECT_EQ(Image->GetBrush().GetImageSize(), FVector2D(32.0, 32.0));
	EXPECT_EQ(Image->GetBrush().GetResourceObject(), nullptr);

	UTexture2D* Texture = UTexture2D::CreateTransient(7, 5);
	Image->SetBrushFromTexture(Texture);
	EXPECT_EQ(Image->GetBrush().GetResourceObject(), Texture);
	EXPECT_EQ(Image->GetBrush().GetImageSize(), FVector2D(32.0, 32.0));

	UImage* Matched = Make<UImage>();
	Matched->SetBrushFromTexture(Texture, true);
	EXPECT_EQ(Matched->GetBrush().GetImageSize(), FVector2D(7.0, 5.0));
}

TEST_F(WidgetDefaultsTest, ConstructWidgetMakesTheTreeTheOuterAndUsesTheNameWhenGiven)
{
	UBorder* Named = Owner->WidgetTree->ConstructWidget<UBorder>(UBorder::StaticClass(), TEXT("StashPanel"));
	UBorder* Unnamed = Owner->WidgetTree->ConstructWidget<UBorder>(UBorder::StaticClass());
	EXPECT_EQ(Named->GetName(), TEXT("StashPanel"));
	EXPECT_EQ(Named->GetOuter(), Owner->WidgetTree);
	EXPECT_EQ(Unnamed->GetOuter(), Owner->WidgetTree);
	EXPECT_NE(Unnamed->GetFName(), Named->GetFName());

	UTestUserWidget* Nested = Owner->WidgetTree->ConstructWidget<UTestUserWidget>(UTestUserWidget::StaticClass());
	EXPECT_NE(Nested->WidgetTree, nullptr);
}

TEST_F(WidgetDefaultsTest, OnlyCreateWidgetGivesAUserWidgetItsTree)
{
	EXPECT_NE(Owner->WidgetTree, nullptr);
	UTestUserWidget* Bare = NewObject<UTestUserWidget>();
	EXPECT_EQ(Bare->WidgetTree, nullptr);
	EXPECT_EQ(CreateWidget<UUserWidget>(nullptr, UUserWidget::StaticClass()), nullptr);
}

TEST_F(WidgetDefaultsTest, AContentWidgetHoldsOneChildAndSetContentReplacesIt)
{
	UBorder* Border = Make<UBorder>();
	UImage* First = Make<UImage>();
	UImage* Second = Make<UImage>();
	EXPECT_NE(Border->AddChild(First), nullptr);
	EXPECT_EQ(Border->AddChild(Second), nullptr);
	Border->SetContent(Second);
	EXPECT_EQ(Border->GetContent(), Second);
	EXPECT_EQ(Border->GetChildrenCount(), 1);
	EXPECT_EQ(First->GetParent(), nullptr);
	EXPECT_EQ(Second->GetParent(), Border);
}

TEST_F(WidgetDefaultsTest, AddingAChildToAnotherPanelMovesIt)
{
	UCanvasPanel* From = Make<UCanvasPanel>();
	UVerticalBox* To = Make<UVerticalBox>();
	UImage* Image = Make<UImage>();
	From->AddChild(Image);
	To->AddChild(Image);
	EXPECT_EQ(From->GetChildrenCount(), 0);
	EXPECT_EQ(To->GetChildIndex(Image), 0);
	Image->RemoveFromParent();
	EXPECT_EQ(To->GetChildrenCount(), 0);
	EXPECT_EQ(Image->Slot, nullptr);
}

TEST_F(WidgetDefaultsTest, GettersReadBackWhatTheSettersStored)
{
	UBorder* Border = Make<UBorder>();
	EXPECT_EQ(Border->GetPadding(), FMargin(4.0f, 2.0f));
	EXPECT_EQ(Border->GetHorizontalAlignment(), HAlign_Fill);
	EXPECT_EQ(Border->GetVerticalAlignment(), VAlign_Fill);
	Border->SetPadding(FMargin(16.0f));
	Border->SetHorizontalAlignment(HAlign_Center);
	Border->SetVerticalAlignment(VAlign_Bottom);
	Border->SetToolTipText(FText::FromString(TEXT("Rope x3")));
	EXPECT_EQ(Border->GetPadding(), FMargin(16.0f));
	EXPECT_EQ(Border->GetHorizontalAlignment(), HAlign_Center);
	EXPECT_EQ(Border->GetVerticalAlignment(), VAlign_Bottom);
	EXPECT_EQ(Border->GetToolTipText().ToString(), FString(TEXT("Rope x3")));
	EXPECT_TRUE(Make<UImage>()->GetToolTipText().IsEmpty());

	UImage* Image = Make<UImage>();
	EXPECT_EQ(Image->GetColorAndOpacity(), FLinearColor::White);
	Image->SetColorAndOpacity(FLinearColor(1.0f, 1.0f, 1.0f, 0.04f));
	EXPECT_EQ(Image->GetColorAndOpacity(), FLinearColor(1.0f, 1.0f, 1.0f, 0.04f));

	UTextBlock* Text = Make<UTextBlock>();
	EXPECT_FALSE(Text->GetAutoWrapText());
	Text->SetAutoWrapText(true);
	EXPECT_TRUE(Text->GetAutoWrapText());

	USizeBox* Sizer = Make<USizeBox>();
	EXPECT_EQ(Sizer->GetWidthOverride(), 0.0f);
	Sizer->SetWidthOverride(640.0f);
	Sizer->SetHeightOverride(512.0f);
	EXPECT_EQ(Sizer->GetWidthOverride(), 640.0f);
	EXPECT_EQ(Sizer->GetHeightOverride(), 512.0f);
}

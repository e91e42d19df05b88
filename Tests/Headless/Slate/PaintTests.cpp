#include "SlateTestSupport.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	struct FSmallTree
	{
		FSlateBrush Frame;
		FSlateBrush Icon;
		TSharedPtr<SBorder> Border;
		TSharedPtr<SImage> First;
		TSharedPtr<SImage> Hidden;
		TSharedPtr<SImage> Collapsed;
		TSharedPtr<STextBlock> Label;

		FSmallTree()
		{
			Frame.DrawAs = ESlateBrushDrawType::Box;
			Icon.SetImageSize(FVector2D(16.0, 16.0));
			SAssignNew(Border, SBorder)
				.BorderImage(&Frame)
				.BorderBackgroundColor(FLinearColor(0.0f, 0.0f, 1.0f, 1.0f))
				.Padding(FMargin(4.0f))
				[
					SNew(SVerticalBox)
					+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Left)[SAssignNew(First, SImage).Image(&Icon)]
					+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Left)[SAssignNew(Hidden, SImage).Image(&Icon).Visibility(EVisibility::Hidden)]
					+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Left)[SAssignNew(Collapsed, SImage).Image(&Icon).Visibility(EVisibility::Collapsed)]
					+ SVerticalBox::Slot().AutoHeight()[SAssignNew(Label, STextBlock).Text(FText::FromString(TEXT("Deposit")))]
				];
		}
	};
}

TEST(PaintTest, ASmallTreeDrawsItsFrameBelowItsVisibleContentInLayoutOrder)
{
	FSmallTree Tree;
	FSlateWindowElementList Elements;
	const int32 MaxLayer = PaintIn(Tree.Border.ToSharedRef(), Elements, 200.0, 100.0);

	const TArray<FSlateDrawElement>& Drawn = Elements.GetDrawElements();
	ASSERT_EQ(Drawn.Num(), 3);

	EXPECT_EQ(Drawn[0].GetElementType(), FSlateDrawElement::EElementType::ET_Box);
	EXPECT_EQ(Drawn[0].GetLayer(), 0);
	EXPECT_EQ(Drawn[0].GetTint(), FLinearColor(0.0f, 0.0f, 1.0f, 1.0f));
	EXPECT_EQ(ElementRect(Drawn[0]), FSlateRect(0.0f, 0.0f, 200.0f, 100.0f));

	// The panel's children share the layer above the frame; the hidden icon keeps its 16 units.
	EXPECT_EQ(Drawn[1].GetElementType(), FSlateDrawElement::EElementType::ET_Box);
	EXPECT_EQ(Drawn[1].GetLayer(), 1);
	EXPECT_EQ(ElementRect(Drawn[1]), FSlateRect(4.0f, 4.0f, 20.0f, 20.0f));

	EXPECT_EQ(Drawn[2].GetElementType(), FSlateDrawElement::EElementType::ET_Text);
	EXPECT_EQ(Drawn[2].GetLayer(), 1);
	EXPECT_EQ(Drawn[2].GetText(), TEXT("Deposit"));
	EXPECT_EQ(Drawn[2].GetPosition(), FVector2f(4.0f, 36.0f));
	EXPECT_EQ(MaxLayer, 1);
}

TEST(PaintTest, TheTreesDesiredSizeCountsHiddenChildrenButNotCollapsedOnes)
{
	FSmallTree Tree;
	Tree.Border->SlatePrepass(1.0f);
	const FVector2D Label = Tree.Label->GetDesiredSize();
	EXPECT_EQ(Tree.Border->GetDesiredSize(), FVector2D(FMath::Max(16.0, Label.X) + 8.0, 32.0 + Label.Y + 8.0));

	Tree.Collapsed->SetVisibility(EVisibility::Visible);
	Tree.Border->SlatePrepass(1.0f);
	EXPECT_EQ(Tree.Border->GetDesiredSize().Y, 48.0 + Label.Y + 8.0);
}

TEST(PaintTest, PaintCachesWindowSpaceAndDesktopSpaceGeometry)
{
	FSmallTree Tree;
	FSlateWindowElementList Elements;
	PaintIn(Tree.Border.ToSharedRef(), Elements, 200.0, 100.0, FVector2D(300.0, 150.0));

	EXPECT_EQ(Tree.First->GetPaintSpaceGeometry().GetLayoutBoundingRect(), FSlateRect(4.0f, 4.0f, 20.0f, 20.0f));
	EXPECT_EQ(Tree.First->GetCachedGeometry().GetLayoutBoundingRect(), FSlateRect(304.0f, 154.0f, 320.0f, 170.0f));
	EXPECT_TRUE(Tree.First->GetCachedGeometry().IsUnderLocation(FVector2D(310.0, 160.0)));
	// Elements stay in window space.
	EXPECT_EQ(ElementRect(Elements.GetDrawElements()[1]), FSlateRect(4.0f, 4.0f, 20.0f, 20.0f));
}

TEST(PaintTest, ABordersColourTintsItsContentAndItsForegroundColoursItsText)
{
	FSlateBrush Icon;
	TSharedPtr<SImage> Image;
	TSharedPtr<STextBlock> Label;
	const TSharedRef<SBorder> Border = SNew(SBorder)
		.BorderImage(nullptr)
		.ColorAndOpacity(FLinearColor(1.0f, 1.0f, 1.0f, 0.5f))
		.ForegroundColor(FLinearColor::Red)
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot().AutoHeight()[SAssignNew(Image, SImage).Image(&Icon)]
			+ SVerticalBox::Slot().AutoHeight()[SAssignNew(Label, STextBlock).Text(FText::FromString(TEXT("x")))]
		];
	FSlateWindowElementList Elements;
	PaintIn(Border, Elements, 100.0, 100.0);

	const TArray<FSlateDrawElement>& Drawn = Elements.GetDrawElements();
	ASSERT_EQ(Drawn.Num(), 2);
	EXPECT_EQ(Drawn[0].GetTint(), FLinearColor(1.0f, 1.0f, 1.0f, 0.5f));
	EXPECT_EQ(Drawn[1].GetTint(), FLinearColor(1.0f, 0.0f, 0.0f, 0.5f));
}

TEST(PaintTest, RenderOpacityFadesTheWidgetAndEverythingInIt)
{
	FSlateBrush Frame;
	FSlateBrush Icon;
	const TSharedRef<SBorder> Border = SNew(SBorder).BorderImage(&Frame).RenderOpacity(0.5f)[SNew(SImage).Image(&Icon).RenderOpacity(0.5f)];
	FSlateWindowElementList Elements;
	PaintIn(Border, Elements, 100.0, 100.0);

	const TArray<FSlateDrawElement>& Drawn = Elements.GetDrawElements();
	ASSERT_EQ(Drawn.Num(), 2);
	EXPECT_EQ(Drawn[0].GetTint().A, 0.5f);
	EXPECT_EQ(Drawn[1].GetTint().A, 0.25f);
}

TEST(PaintTest, AChildsRenderTransformMovesItsElementsAboutItsPivot)
{
	FSlateBrush Icon;
	TSharedPtr<SImage> Image;
	const TSharedRef<SBox> Box = SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)
		[
			SAssignNew(Image, SImage)
			.Image(&Icon)
			.RenderTransform(TOptional<FSlateRenderTransform>(FSlateRenderTransform(2.0f)))
			.RenderTransformPivot(FVector2D(0.5, 0.5))
		];
	FSlateWindowElementList Elements;
	PaintIn(Box, Elements, 100.0, 100.0);

	ASSERT_EQ(Elements.GetDrawElements().Num(), 1);
	const FSlateDrawElement& Drawn = Elements.GetDrawElements()[0];
	// Layout still puts the 32-unit image at the corner; drawing doubles it about its centre.
	EXPECT_EQ(ElementRect(Drawn), FSlateRect(0.0f, 0.0f, 32.0f, 32.0f));
	EXPECT_EQ(Drawn.GetRenderTransform().TransformPoint(FVector2f(0.0f, 0.0f)), FVector2f(-16.0f, -16.0f));
	EXPECT_EQ(Drawn.GetRenderTransform().TransformPoint(FVector2f(32.0f, 32.0f)), FVector2f(48.0f, 48.0f));
	EXPECT_TRUE(Image->GetPaintSpaceGeometry().HasRenderTransform());
	EXPECT_EQ(Image->GetPaintSpaceGeometry().GetRenderBoundingRect(), FSlateRect(-16.0f, -16.0f, 48.0f, 48.0f));
}

TEST(PaintTest, ACollapsedRootChildPaintsNothingAndReturnsTheLayerItWasGiven)
{
	FSlateBrush Icon;
	const TSharedRef<SBox> Box = SNew(SBox)[SNew(SImage).Image(&Icon).Visibility(EVisibility::Collapsed)];
	FSlateWindowElementList Elements;
	EXPECT_EQ(PaintIn(Box, Elements, 100.0, 100.0), 0);
	EXPECT_EQ(Elements.GetDrawElements().Num(), 0);
}

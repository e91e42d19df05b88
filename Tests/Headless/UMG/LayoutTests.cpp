#include "Components/Border.h"
#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"
#include "Components/Image.h"
#include "Components/SizeBox.h"
#include "Components/TextBlock.h"
#include "Components/VerticalBox.h"
#include "Components/VerticalBoxSlot.h"
#include "Engine/Texture2D.h"
#include "Rendering/DrawElements.h"
#include "ViewportTestFixture.h"
#include "Widgets/SWidget.h"

using LayoutTest = ViewportTest;

namespace
{
	USizeBox* MakeSized(USizeBox* Box, float Width, float Height)
	{
		Box->SetWidthOverride(Width);
		Box->SetHeightOverride(Height);
		return Box;
	}

	UBorder* TopLeftFrame(UBorder* Frame)
	{
		Frame->SetPadding(FMargin(0.0f));
		Frame->SetHorizontalAlignment(HAlign_Left);
		Frame->SetVerticalAlignment(VAlign_Top);
		return Frame;
	}

	const FSlateDrawElement* FindBoxTinted(const FSlateWindowElementList& Elements, const FLinearColor& Tint)
	{
		for (const FSlateDrawElement& Element : Elements.GetDrawElements())
		{
			if (Element.GetElementType() == FSlateDrawElement::EElementType::ET_Box && Element.GetTint() == Tint)
			{
				return &Element;
			}
		}
		return nullptr;
	}
}

TEST_F(LayoutTest, BorderPaddingAndCentringPlaceTheContentInTheMiddleOfTheWindow)
{
	UBorder* Root = Make<UBorder>();
	Root->SetPadding(FMargin(16.0f));
	Root->SetHorizontalAlignment(HAlign_Center);
	Root->SetVerticalAlignment(VAlign_Center);
	USizeBox* Content = MakeSized(Make<USizeBox>(), 100.0f, 50.0f);
	Root->SetContent(Content);
	Show(Root);

	EXPECT_EQ(ScreenRect(Root), FSlateRect(0.0f, 0.0f, 800.0f, 600.0f));
	EXPECT_EQ(ScreenRect(Content), FSlateRect(350.0f, 275.0f, 450.0f, 325.0f));
	EXPECT_EQ(Root->GetCachedWidget()->GetDesiredSize(), FVector2D(132.0, 82.0));
}

TEST_F(LayoutTest, BorderContentFillsInsideTheDefaultPadding)
{
	UBorder* Root = Make<UBorder>();
	USizeBox* Content = MakeSized(Make<USizeBox>(), 100.0f, 50.0f);
	Root->SetContent(Content);
	Show(Root);

	EXPECT_EQ(ScreenRect(Content), FSlateRect(4.0f, 2.0f, 796.0f, 598.0f));
}

TEST_F(LayoutTest, VerticalBoxStacksChildrenWithTheirPaddingAndAlignsThemAcross)
{
	UVerticalBox* Column = Make<UVerticalBox>();
	USizeBox* First = MakeSized(Make<USizeBox>(), 100.0f, 20.0f);
	USizeBox* Second = MakeSized(Make<USizeBox>(), 50.0f, 30.0f);
	USizeBox* Third = MakeSized(Make<USizeBox>(), 60.0f, 10.0f);
	Column->AddChildToVerticalBox(First);
	Column->AddChildToVerticalBox(Second)->SetPadding(FMargin(0.0f, 2.0f, 0.0f, 8.0f));
	Column->AddChildToVerticalBox(Third)->SetHorizontalAlignment(HAlign_Right);
	UBorder* Root = TopLeftFrame(Make<UBorder>());
	Root->SetContent(Column);
	Show(Root);

	EXPECT_EQ(ScreenRect(Column), FSlateRect(0.0f, 0.0f, 100.0f, 70.0f));
	EXPECT_EQ(ScreenRect(First), FSlateRect(0.0f, 0.0f, 100.0f, 20.0f));
	EXPECT_EQ(ScreenRect(Second), FSlateRect(0.0f, 22.0f, 100.0f, 52.0f));
	EXPECT_EQ(ScreenRect(Third), FSlateRect(40.0f, 60.0f, 100.0f, 70.0f));
}

TEST_F(LayoutTest, AFillSlotTakesTheHeightTheAutoSlotsLeave)
{
	UVerticalBox* Column = Make<UVerticalBox>();
	USizeBox* Header = MakeSized(Make<USizeBox>(), 10.0f, 100.0f);
	USizeBox* Body = MakeSized(Make<USizeBox>(), 10.0f, 10.0f);
	Column->AddChildToVerticalBox(Header);
	Column->AddChildToVerticalBox(Body)->SetSize(FSlateChildSize(ESlateSizeRule::Fill));
	UBorder* Root = Make<UBorder>();
	Root->SetPadding(FMargin(0.0f));
	Root->SetContent(Column);
	Show(Root);

	EXPECT_EQ(ScreenRect(Body), FSlateRect(0.0f, 100.0f, 800.0f, 600.0f));
}

TEST_F(LayoutTest, ACanvasAsksForTheSpaceItsChildrenTakeUntilASizeBoxOverridesIt)
{
	USizeBox* Sizer = Make<USizeBox>();
	UCanvasPanel* Canvas = Make<UCanvasPanel>();
	Sizer->AddChild(Canvas);
	UCanvasPanelSlot* ImageSlot = Canvas->AddChildToCanvas(Make<UImage>());
	ImageSlot->SetPosition(FVector2D(20.0, 10.0));
	ImageSlot->SetSize(FVector2D(300.0, 200.0));
	UBorder* Root = TopLeftFrame(Make<UBorder>());
	Root->SetContent(Sizer);
	Show(Root);

	EXPECT_EQ(Canvas->GetDesiredSize(), FVector2D(320.0, 210.0));
	EXPECT_EQ(ScreenRect(Canvas), FSlateRect(0.0f, 0.0f, 320.0f, 210.0f));

	MakeSized(Sizer, 640.0f, 512.0f);
	Viewport->Tick();
	EXPECT_EQ(Sizer->GetDesiredSize(), FVector2D(640.0, 512.0));
	EXPECT_EQ(ScreenRect(Canvas), FSlateRect(0.0f, 0.0f, 640.0f, 512.0f));
}

TEST_F(LayoutTest, CanvasSlotsPlaceChildrenByPositionSizeAnchorsAndAlignment)
{
	UCanvasPanel* Canvas = Make<UCanvasPanel>();
	UImage* Placed = Make<UImage>();
	UCanvasPanelSlot* PlacedSlot = Canvas->AddChildToCanvas(Placed);
	PlacedSlot->SetPosition(FVector2D(10.0, 20.0));
	PlacedSlot->SetSize(FVector2D(30.0, 40.0));

	USizeBox* AutoSized = MakeSized(Make<USizeBox>(), 40.0f, 10.0f);
	UCanvasPanelSlot* AutoSlot = Canvas->AddChildToCanvas(AutoSized);
	AutoSlot->SetAutoSize(true);
	AutoSlot->SetPosition(FVector2D(5.0, 5.0));

	UImage* Cornered = Make<UImage>();
	UCanvasPanelSlot* CornerSlot = Canvas->AddChildToCanvas(Cornered);
	CornerSlot->SetAnchors(FAnchors(1.0f, 1.0f));
	CornerSlot->SetAlignment(FVector2D(1.0, 1.0));
	CornerSlot->SetOffsets(FMargin(-10.0f, -10.0f, 50.0f, 20.0f));

	UImage* Stretched = Make<UImage>();
	UCanvasPanelSlot* StretchSlot = Canvas->AddChildToCanvas(Stretched);
	StretchSlot->SetAnchors(FAnchors(0.0f, 0.0f, 1.0f, 0.0f));
	StretchSlot->SetOffsets(FMargin(10.0f, 5.0f, 20.0f, 30.0f));

	UBorder* Root = Make<UBorder>();
	Root->SetPadding(FMargin(0.0f));
	Root->SetContent(Canvas);
	Show(Root);

	EXPECT_EQ(ScreenRect(Placed), FSlateRect(10.0f, 20.0f, 40.0f, 60.0f));
	EXPECT_EQ(ScreenRect(AutoSized), FSlateRect(5.0f, 5.0f, 45.0f, 15.0f));
	EXPECT_EQ(ScreenRect(Cornered), FSlateRect(740.0f, 570.0f, 790.0f, 590.0f));
	EXPECT_EQ(ScreenRect(Stretched), FSlateRect(10.0f, 5.0f, 780.0f, 35.0f));
}

TEST_F(LayoutTest, HigherZOrderIsPaintedLaterOnAHigherLayerWhateverTheOrderOfAddition)
{
	const FLinearColor Red(1.0f, 0.0f, 0.0f, 1.0f);
	const FLinearColor Blue(0.0f, 0.0f, 1.0f, 1.0f);
	UCanvasPanel* Canvas = Make<UCanvasPanel>();
	UImage* Top = Make<UImage>();
	Top->SetColorAndOpacity(Red);
	Canvas->AddChildToCanvas(Top)->SetZOrder(10);
	UImage* Bottom = Make<UImage>();
	Bottom->SetColorAndOpacity(Blue);
	Canvas->AddChildToCanvas(Bottom);
	Show(Canvas);

	FSlateWindowElementList Elements;
	Viewport->Paint(Elements);
	const FSlateDrawElement* TopElement = FindBoxTinted(Elements, Red);
	const FSlateDrawElement* BottomElement = FindBoxTinted(Elements, Blue);
	ASSERT_NE(TopElement, nullptr);
	ASSERT_NE(BottomElement, nullptr);
	EXPECT_LT(BottomElement, TopElement);
	EXPECT_GT(TopElement->GetLayer(), BottomElement->GetLayer());
}

TEST_F(LayoutTest, ACollapsedChildTakesNoSpaceAndDrawsNothing)
{
	UVerticalBox* Column = Make<UVerticalBox>();
	USizeBox* Gone = MakeSized(Make<USizeBox>(), 100.0f, 20.0f);
	USizeBox* Kept = MakeSized(Make<USizeBox>(), 100.0f, 20.0f);
	Column->AddChildToVerticalBox(Gone);
	Column->AddChildToVerticalBox(Kept);
	Gone->SetVisibility(ESlateVisibility::Collapsed);
	UBorder* Root = TopLeftFrame(Make<UBorder>());
	Root->SetContent(Column);
	Show(Root);

	EXPECT_EQ(ScreenRect(Kept), FSlateRect(0.0f, 0.0f, 100.0f, 20.0f));
}

TEST_F(LayoutTest, PaintingGivesTheRendererTintedBoxesTexturedImagesAndColouredText)
{
	const FLinearColor Shade(0.0f, 0.0f, 0.0f, 0.25f);
	const FLinearColor Accent(0.94f, 0.64f, 0.19f, 1.0f);
	UBorder* Frame = TopLeftFrame(Make<UBorder>());
	Frame->SetBrushColor(Shade);
	UVerticalBox* Column = Make<UVerticalBox>();
	Frame->SetContent(Column);
	UImage* Icon = Make<UImage>();
	UTexture2D* Texture = UTexture2D::CreateTransient(4, 4);
	Icon->SetBrushFromTexture(Texture, true);
	Column->AddChildToVerticalBox(Icon)->SetHorizontalAlignment(HAlign_Left);
	UTextBlock* Label = Make<UTextBlock>();
	Label->SetText(FText::FromString(TEXT("STASH")));
	Label->SetColorAndOpacity(FSlateColor(Accent));
	Column->AddChildToVerticalBox(Label);
	Show(Frame);

	FSlateWindowElementList Elements;
	Viewport->Paint(Elements);
	const FSlateDrawElement* Background = FindBoxTinted(Elements, Shade);
	ASSERT_NE(Background, nullptr);
	EXPECT_EQ(Background->GetPosition(), FVector2f(0.0f, 0.0f));
	EXPECT_EQ(FVector2D(Background->GetLocalSize()), ScreenRect(Frame).GetSize());

	const FSlateDrawElement* Image = FindBoxTinted(Elements, FLinearColor::White);
	ASSERT_NE(Image, nullptr);
	EXPECT_EQ(Image->GetBrush().GetResourceObject(), Texture);
	EXPECT_EQ(Image->GetLocalSize(), FVector2f(4.0f, 4.0f));
	EXPECT_GT(Image->GetLayer(), Background->GetLayer());

	const FSlateDrawElement* Text = nullptr;
	for (const FSlateDrawElement& Element : Elements.GetDrawElements())
	{
		if (Element.GetElementType() == FSlateDrawElement::EElementType::ET_Text)
		{
			Text = &Element;
		}
	}
	ASSERT_NE(Text, nullptr);
	EXPECT_EQ(Text->GetText(), TEXT("STASH"));
	EXPECT_EQ(Text->GetTint(), Accent);
	EXPECT_EQ(Text->GetFontInfo().Size, 24.0f);
	EXPECT_EQ(Text->GetPosition(), FVector2f(0.0f, 4.0f));
}

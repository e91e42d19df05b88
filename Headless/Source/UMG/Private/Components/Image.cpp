#include "Components/Image.h"

#include "Engine/Texture2D.h"
#include "Widgets/Images/SImage.h"

UImage::UImage(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, ColorAndOpacity(FLinearColor::White)
{
}

void UImage::SetColorAndOpacity(FLinearColor InColorAndOpacity)
{
	ColorAndOpacity = InColorAndOpacity;
	if (MyImage)
	{
		MyImage->SetColorAndOpacity(FSlateColor(ColorAndOpacity));
	}
}

void UImage::SetOpacity(float InOpacity)
{
	FLinearColor NewColor = ColorAndOpacity;
	NewColor.A = InOpacity;
	SetColorAndOpacity(NewColor);
}

void UImage::SetBrush(const FSlateBrush& InBrush)
{
	Brush = InBrush;
	if (MyImage)
	{
		MyImage->SetImage(&Brush);
	}
}

void UImage::SetBrushFromTexture(UTexture2D* Texture, bool bMatchSize)
{
	if (Brush.GetResourceObject() == Texture)
	{
		return;
	}
	Brush.SetResourceObject(Texture);
	if (bMatchSize)
	{
		Brush.ImageSize = Texture ? FVector2f(float(Texture->GetSizeX()), float(Texture->GetSizeY())) : FVector2f(0.0f, 0.0f);
	}
	if (MyImage)
	{
		MyImage->SetImage(&Brush);
	}
}

void UImage::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (MyImage)
	{
		MyImage->SetImage(&Brush);
		MyImage->SetColorAndOpacity(FSlateColor(ColorAndOpacity));
	}
}

void UImage::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyImage.Reset();
}

void UImage::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	Super::AddReferencedObjects(InThis, Collector);
	UObject* Resource = static_cast<UImage*>(InThis)->Brush.GetResourceObject();
	Collector.AddReferencedObject(Resource, InThis);
}

TSharedRef<SWidget> UImage::RebuildWidget()
{
	MyImage = SNew(SImage);
	return MyImage.ToSharedRef();
}

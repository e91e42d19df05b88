// How to fill a rectangle: a tinted image, a box, or nothing. The resource is a texture object
// the engine layer fills in; without one the brush draws a plain rectangle of its tint.
#pragma once

#include "Layout/Margin.h"
#include "Math/Vector2D.h"
#include "Styling/SlateColor.h"
#include "UObject/NameTypes.h"

class UObject;
class FWidgetStyle;

namespace ESlateBrushDrawType
{
	enum Type : int
	{
		NoDrawType,
		Box,
		Border,
		Image,
		RoundedBox,
	};
}

namespace ESlateBrushTileType
{
	enum Type : int
	{
		NoTile,
		Horizontal,
		Vertical,
		Both,
	};
}

namespace SlateBrushDefs
{
	static constexpr float DefaultImageSize = 32.0f;
}

struct FSlateBrush
{
public:
	// The size the image wants, in slate units.
	FVector2f ImageSize;
	// For box and border brushes: the unstretched edges, as fractions of the image.
	FMargin Margin;
	FSlateColor TintColor;
	ESlateBrushDrawType::Type DrawAs;
	ESlateBrushTileType::Type Tiling;
	FName ResourceName;

	FSlateBrush()
		: ImageSize(SlateBrushDefs::DefaultImageSize, SlateBrushDefs::DefaultImageSize)
		, Margin(0.0f)
		, TintColor(FLinearColor::White)
		, DrawAs(ESlateBrushDrawType::Image)
		, Tiling(ESlateBrushTileType::NoTile)
		, ResourceObject(nullptr)
	{
	}

	virtual ~FSlateBrush() = default;
	FSlateBrush(const FSlateBrush&) = default;
	FSlateBrush& operator=(const FSlateBrush&) = default;

	FVector2D GetImageSize() const
	{
		return FVector2D(ImageSize);
	}

	void SetImageSize(FVector2D InImageSize)
	{
		ImageSize = FVector2f(InImageSize);
	}

	const FMargin& GetMargin() const
	{
		return Margin;
	}

	ESlateBrushDrawType::Type GetDrawType() const
	{
		return DrawAs;
	}

	FLinearColor GetTint(const FWidgetStyle& InWidgetStyle) const
	{
		return TintColor.GetColor(InWidgetStyle);
	}

	UObject* GetResourceObject() const
	{
		return ResourceObject;
	}

	void SetResourceObject(UObject* InResourceObject)
	{
		ResourceObject = InResourceObject;
	}

	const FName GetResourceName() const
	{
		return ResourceName;
	}

	bool HasUObject() const
	{
		return ResourceObject != nullptr;
	}

	bool operator==(const FSlateBrush& Other) const
	{
		return ImageSize == Other.ImageSize && Margin == Other.Margin && TintColor == Other.TintColor && DrawAs == Other.DrawAs
			&& Tiling == Other.Tiling && ResourceObject == Other.ResourceObject && ResourceName == Other.ResourceName;
	}

	bool operator!=(const FSlateBrush& Other) const
	{
		return !(*this == Other);
	}

private:
	UObject* ResourceObject;
};

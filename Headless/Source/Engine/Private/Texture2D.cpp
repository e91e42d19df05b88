#include "Engine/Texture2D.h"

#include "UObject/Package.h"

UTexture2D* UTexture2D::CreateTransient(int32 InSizeX, int32 InSizeY, const FName InName)
{
	if (InSizeX <= 0 || InSizeY <= 0)
	{
		return nullptr;
	}
	UTexture2D* Texture = NewObject<UTexture2D>(GetTransientPackage(), InName, RF_Transient);
	TArray<uint8> Pixels;
	Pixels.SetNumZeroed(InSizeX * InSizeY * 4);
	Texture->SetHeadlessPixelsRGBA8(InSizeX, InSizeY, MoveTemp(Pixels));
	return Texture;
}

FColor UTexture2D::GetHeadlessPixel(int32 X, int32 Y) const
{
	check(X >= 0 && X < SizeX && Y >= 0 && Y < SizeY);
	const uint8* Pixel = PixelsRGBA8.GetData() + (SIZE_T(Y) * SizeX + X) * 4;
	return FColor(Pixel[0], Pixel[1], Pixel[2], Pixel[3]);
}

void UTexture2D::SetHeadlessPixelsRGBA8(int32 InSizeX, int32 InSizeY, TArray<uint8> Pixels)
{
	check(InSizeX >= 0 && InSizeY >= 0 && Pixels.Num() == InSizeX * InSizeY * 4);
	SizeX = InSizeX;
	SizeY = InSizeY;
	PixelsRGBA8 = MoveTemp(Pixels);
}

#include "Headless/HeadlessImage.h"

#include "HAL/FileManager.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

#include <png.h>

#include <cstring>

DEFINE_LOG_CATEGORY_STATIC(LogHeadlessImage, Log, All);

FHeadlessImage::FHeadlessImage(int32 InSizeX, int32 InSizeY, const FColor& Fill)
	: SizeX(FMath::Max(InSizeX, 0))
	, SizeY(FMath::Max(InSizeY, 0))
{
	Pixels.Init(Fill, SizeX * SizeY);
}

FHeadlessImage::FHeadlessImage(int32 InSizeX, int32 InSizeY, TArray<FColor>&& InPixels)
	: SizeX(FMath::Max(InSizeX, 0))
	, SizeY(FMath::Max(InSizeY, 0))
	, Pixels(MoveTemp(InPixels))
{
	check(Pixels.Num() == SizeX * SizeY);
}

FColor FHeadlessImage::GetPixel(int32 X, int32 Y) const
{
	check(X >= 0 && X < SizeX && Y >= 0 && Y < SizeY);
	return Pixels[Y * SizeX + X];
}

void FHeadlessImage::SetPixel(int32 X, int32 Y, const FColor& Color)
{
	check(X >= 0 && X < SizeX && Y >= 0 && Y < SizeY);
	Pixels[Y * SizeX + X] = Color;
}

TArray<uint8> FHeadlessImage::EncodePng() const
{
	TArray<uint8> Result;
	if (IsEmpty())
	{
		return Result;
	}
	// FColor is laid out BGRA; libpng wants the channels in file order.
	TArray<uint8> Rgba;
	Rgba.SetNumUninitialized(Pixels.Num() * 4);
	for (int32 Index = 0; Index < Pixels.Num(); ++Index)
	{
		const FColor& Pixel = Pixels[Index];
		uint8* Out = Rgba.GetData() + Index * 4;
		Out[0] = Pixel.R;
		Out[1] = Pixel.G;
		Out[2] = Pixel.B;
		Out[3] = Pixel.A;
	}

	png_image Image;
	std::memset(&Image, 0, sizeof(Image));
	Image.version = PNG_IMAGE_VERSION;
	Image.width = png_uint_32(SizeX);
	Image.height = png_uint_32(SizeY);
	Image.format = PNG_FORMAT_RGBA;
	// Frames are encoded as they are shown (the preview sends one per move): speed over size, and
	// one pass into a buffer big enough for any outcome rather than a first pass to measure it.
	Image.flags = PNG_IMAGE_FLAG_FAST;
	png_alloc_size_t Size = PNG_IMAGE_PNG_SIZE_MAX(Image);
	Result.SetNumUninitialized(int32(Size));
	if (!png_image_write_to_memory(&Image, Result.GetData(), &Size, 0, Rgba.GetData(), 0, nullptr))
	{
		UE_LOG(LogHeadlessImage, Warning, TEXT("Could not encode a %dx%d image as PNG: %s"), SizeX, SizeY, *FString(Image.message));
		Result.Empty();
		return Result;
	}
	Result.SetNum(int32(Size));
	return Result;
}

bool FHeadlessImage::SaveAsPng(const FString& Filename) const
{
	const TArray<uint8> Bytes = EncodePng();
	if (Bytes.IsEmpty())
	{
		UE_LOG(LogHeadlessImage, Warning, TEXT("Nothing to write to %s: the image is empty"), *Filename);
		return false;
	}
	const FString Directory = FPaths::GetPath(Filename);
	if (!Directory.IsEmpty())
	{
		IFileManager::Get().MakeDirectory(*Directory, true);
	}
	if (!FFileHelper::SaveArrayToFile(Bytes, *Filename))
	{
		UE_LOG(LogHeadlessImage, Warning, TEXT("Could not write %s"), *Filename);
		return false;
	}
	return true;
}

#include "Misc/FileHelper.h"

#include "Containers/StringConv.h"
#include "HAL/FileManager.h"
#include "Misc/Paths.h"

#include <cstdio>
#include <memory>

namespace
{
	struct FCloseFile
	{
		void operator()(std::FILE* File) const
		{
			std::fclose(File);
		}
	};

	using FFileHandle = std::unique_ptr<std::FILE, FCloseFile>;

	FFileHandle OpenFile(const TCHAR* Filename, const char* Mode)
	{
		if (Filename == nullptr || *Filename == 0)
		{
			return FFileHandle();
		}
		return FFileHandle(std::fopen(TCHAR_TO_UTF8(Filename), Mode));
	}

	void AppendUtf16(TArray<TCHAR>& Out, const uint8* Buffer, int32 Size, bool bBigEndian)
	{
		for (int32 Index = 0; Index + 1 < Size; Index += 2)
		{
			const uint16 Unit = bBigEndian ? uint16((Buffer[Index] << 8) | Buffer[Index + 1]) : uint16(Buffer[Index] | (Buffer[Index + 1] << 8));
			Out.Add(TCHAR(Unit));
		}
	}
}

bool FFileHelper::LoadFileToArray(TArray<uint8>& Result, const TCHAR* Filename, uint32 Flags)
{
	Result.Empty();
	FFileHandle File = OpenFile(Filename, "rb");
	if (!File || !IFileManager::Get().FileExists(Filename))
	{
		return false;
	}
	uint8 Chunk[64 * 1024];
	for (;;)
	{
		const size_t Read = std::fread(Chunk, 1, sizeof(Chunk), File.get());
		Result.Append(Chunk, int32(Read));
		if (Read < sizeof(Chunk))
		{
			break;
		}
	}
	if (std::ferror(File.get()))
	{
		Result.Empty();
		return false;
	}
	return true;
}

void FFileHelper::BufferToString(FString& Result, const uint8* Buffer, int32 Size)
{
	TArray<TCHAR>& Chars = Result.GetCharArray();
	Chars.Empty();
	if (Size >= 2 && Buffer[0] == 0xff && Buffer[1] == 0xfe)
	{
		AppendUtf16(Chars, Buffer + 2, Size - 2, false);
	}
	else if (Size >= 2 && Buffer[0] == 0xfe && Buffer[1] == 0xff)
	{
		AppendUtf16(Chars, Buffer + 2, Size - 2, true);
	}
	else
	{
		const bool bUtf8Bom = Size >= 3 && Buffer[0] == 0xef && Buffer[1] == 0xbb && Buffer[2] == 0xbf;
		const int32 Skip = bUtf8Bom ? 3 : 0;
		UE::Core::Private::AppendUtf8AsTChar(Chars, reinterpret_cast<const UTF8CHAR*>(Buffer + Skip), Size - Skip);
	}
	// The engine keeps no embedded terminators: text stops at the first null.
	for (int32 Index = 0; Index < Chars.Num(); ++Index)
	{
		if (Chars[Index] == 0)
		{
			Chars.SetNum(Index);
			break;
		}
	}
	if (Chars.Num() > 0)
	{
		Chars.Add(TCHAR(0));
	}
}

bool FFileHelper::LoadFileToString(FString& Result, const TCHAR* Filename, EHashOptions VerifyFlags, uint32 ReadFlags)
{
	TArray<uint8> Bytes;
	if (!LoadFileToArray(Bytes, Filename))
	{
		Result.Empty();
		return false;
	}
	BufferToString(Result, Bytes.GetData(), Bytes.Num());
	return true;
}

bool FFileHelper::LoadFileToStringArray(TArray<FString>& Result, const TCHAR* Filename)
{
	Result.Empty();
	FString Text;
	if (!LoadFileToString(Text, Filename))
	{
		return false;
	}
	Text.ParseIntoArrayLines(Result, false);
	return true;
}

bool FFileHelper::SaveArrayToFile(const TArray<uint8>& Array, const TCHAR* Filename, IFileManager* FileManager, uint32 WriteFlags)
{
	IFileManager& Manager = FileManager ? *FileManager : IFileManager::Get();
	const FString Directory = FPaths::GetPath(FString(Filename));
	if (!Directory.IsEmpty() && !Manager.MakeDirectory(*Directory, true))
	{
		return false;
	}
	FFileHandle File = OpenFile(Filename, "wb");
	if (!File)
	{
		return false;
	}
	const size_t Written = Array.Num() ? std::fwrite(Array.GetData(), 1, size_t(Array.Num()), File.get()) : 0;
	return Written == size_t(Array.Num()) && std::fflush(File.get()) == 0;
}

bool FFileHelper::SaveStringToFile(FStringView String, const TCHAR* Filename, EEncodingOptions EncodingOptions, IFileManager* FileManager, uint32 WriteFlags)
{
	if (EncodingOptions == EEncodingOptions::AutoDetect)
	{
		EncodingOptions = EEncodingOptions::ForceAnsi;
		for (int32 Index = 0; Index < String.Len(); ++Index)
		{
			if (String[Index] >= 0x80)
			{
				EncodingOptions = EEncodingOptions::ForceUnicode;
				break;
			}
		}
	}

	TArray<uint8> Bytes;
	switch (EncodingOptions)
	{
	case EEncodingOptions::ForceUnicode:
		Bytes.Add(0xff);
		Bytes.Add(0xfe);
		for (int32 Index = 0; Index < String.Len(); ++Index)
		{
			Bytes.Add(uint8(String[Index] & 0xff));
			Bytes.Add(uint8(String[Index] >> 8));
		}
		break;
	case EEncodingOptions::ForceUTF8:
	case EEncodingOptions::ForceUTF8WithoutBOM:
	{
		if (EncodingOptions == EEncodingOptions::ForceUTF8)
		{
			Bytes.Append({ uint8(0xef), uint8(0xbb), uint8(0xbf) });
		}
		const FTCHARToUTF8 Utf8(String.GetData(), String.Len());
		Bytes.Append(reinterpret_cast<const uint8*>(Utf8.Get()), Utf8.Length());
		break;
	}
	default:
	{
		const FTCHARToANSI Ansi(String.GetData(), String.Len());
		Bytes.Append(reinterpret_cast<const uint8*>(Ansi.Get()), Ansi.Length());
		break;
	}
	}
	return SaveArrayToFile(Bytes, Filename, FileManager, WriteFlags);
}

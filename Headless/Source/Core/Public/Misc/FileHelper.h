// Whole-file reads and writes. Text is decoded from UTF-16 (either byte order, with its byte order
// mark) or else from UTF-8, with or without a byte order mark.
#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/StringView.h"
#include "Containers/UnrealString.h"

class IFileManager;

struct FFileHelper
{
	enum class EHashOptions
	{
		None = 0,
		EnableVerify = 1 << 0,
		ErrorMissingHash = 1 << 1,
	};

	enum class EEncodingOptions
	{
		/** ANSI when every character fits in 7 bits, otherwise UTF-16 LE with a byte order mark. */
		AutoDetect,
		ForceAnsi,
		/** UTF-16 LE with a byte order mark. */
		ForceUnicode,
		ForceUTF8,
		ForceUTF8WithoutBOM,
	};

	static CORE_API bool LoadFileToArray(TArray<uint8>& Result, const TCHAR* Filename, uint32 Flags = 0);
	/** False, leaving Result empty, when the file cannot be read. */
	static CORE_API bool LoadFileToString(FString& Result, const TCHAR* Filename, EHashOptions VerifyFlags = EHashOptions::None, uint32 ReadFlags = 0);
	/** One string per line, without the line ends. */
	static CORE_API bool LoadFileToStringArray(TArray<FString>& Result, const TCHAR* Filename);
	/** Decodes text bytes as LoadFileToString does. */
	static CORE_API void BufferToString(FString& Result, const uint8* Buffer, int32 Size);

	static CORE_API bool SaveArrayToFile(const TArray<uint8>& Array, const TCHAR* Filename, IFileManager* FileManager = nullptr, uint32 WriteFlags = 0);
	/** Creates the file's directory when it is missing. */
	static CORE_API bool SaveStringToFile(FStringView String, const TCHAR* Filename, EEncodingOptions EncodingOptions = EEncodingOptions::AutoDetect, IFileManager* FileManager = nullptr, uint32 WriteFlags = 0);
};

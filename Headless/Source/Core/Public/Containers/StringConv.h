// Conversions between TCHAR (UTF-16) and UTF-8 or ANSI. Malformed input never fails: an invalid UTF-8
// sequence or an unpaired surrogate becomes U+FFFD, one per maximal bad subsequence, as the Unicode
// standard recommends; ANSI cannot hold anything above 0x7f, which becomes '?'.
#pragma once

#include "Containers/Array.h"
#include "HAL/Platform.h"
#include "Misc/CString.h"

#include <type_traits>

namespace UE::Core::Private
{
	/** Appends the UTF-16 form of Count UTF-8 bytes, without a terminator. */
	CORE_API void AppendUtf8AsTChar(TArray<TCHAR>& Out, const UTF8CHAR* Source, int32 Count);
	/** Appends the UTF-8 form of Count UTF-16 units, without a terminator. */
	CORE_API void AppendTCharAsUtf8(TArray<UTF8CHAR>& Out, const TCHAR* Source, int32 Count);

	template <typename CharType>
	int32 NullTerminatedLength(const CharType* Source)
	{
		int32 Length = 0;
		if (Source)
		{
			while (Source[Length] != 0)
			{
				++Length;
			}
		}
		return Length;
	}

	template <typename ToType>
	class TConversionBuffer
	{
	public:
		const ToType* Get() const
		{
			return Buffer.GetData();
		}

		/** Code units, without the terminator. */
		int32 Length() const
		{
			return Buffer.Num() - 1;
		}

	protected:
		void Terminate()
		{
			Buffer.Add(ToType(0));
		}

		TArray<ToType> Buffer;
	};
}

/** TCHAR to UTF-8. Get() stays valid while this object lives. */
class FTCHARToUTF8 : public UE::Core::Private::TConversionBuffer<UTF8CHAR>
{
public:
	explicit FTCHARToUTF8(const TCHAR* Source)
		: FTCHARToUTF8(Source, UE::Core::Private::NullTerminatedLength(Source))
	{
	}

	FTCHARToUTF8(const TCHAR* Source, int32 SourceLength)
	{
		UE::Core::Private::AppendTCharAsUtf8(Buffer, Source, SourceLength);
		Terminate();
	}
};

/** UTF-8 to TCHAR; accepts bytes typed as ANSICHAR or UTF8CHAR. */
class FUTF8ToTCHAR : public UE::Core::Private::TConversionBuffer<TCHAR>
{
public:
	template <typename SourceCharType>
		requires (std::is_same_v<SourceCharType, ANSICHAR> || std::is_same_v<SourceCharType, UTF8CHAR>)
	explicit FUTF8ToTCHAR(const SourceCharType* Source)
		: FUTF8ToTCHAR(Source, UE::Core::Private::NullTerminatedLength(Source))
	{
	}

	template <typename SourceCharType>
		requires (std::is_same_v<SourceCharType, ANSICHAR> || std::is_same_v<SourceCharType, UTF8CHAR>)
	FUTF8ToTCHAR(const SourceCharType* Source, int32 SourceLength)
	{
		UE::Core::Private::AppendUtf8AsTChar(Buffer, reinterpret_cast<const UTF8CHAR*>(Source), SourceLength);
		Terminate();
	}
};

/** TCHAR to 7-bit ANSI; anything else becomes '?'. */
class FTCHARToANSI : public UE::Core::Private::TConversionBuffer<ANSICHAR>
{
public:
	explicit FTCHARToANSI(const TCHAR* Source)
		: FTCHARToANSI(Source, UE::Core::Private::NullTerminatedLength(Source))
	{
	}

	FTCHARToANSI(const TCHAR* Source, int32 SourceLength)
	{
		Buffer.Reserve(SourceLength + 1);
		for (int32 Index = 0; Index < SourceLength; ++Index)
		{
			Buffer.Add(Source[Index] < 0x80 ? ANSICHAR(Source[Index]) : '?');
		}
		Terminate();
	}
};

/** ANSI bytes to TCHAR, each byte the code unit of the same value. */
class FANSIToTCHAR : public UE::Core::Private::TConversionBuffer<TCHAR>
{
public:
	explicit FANSIToTCHAR(const ANSICHAR* Source)
		: FANSIToTCHAR(Source, UE::Core::Private::NullTerminatedLength(Source))
	{
	}

	FANSIToTCHAR(const ANSICHAR* Source, int32 SourceLength)
	{
		Buffer.Reserve(SourceLength + 1);
		for (int32 Index = 0; Index < SourceLength; ++Index)
		{
			Buffer.Add(TCHAR(uint8(Source[Index])));
		}
		Terminate();
	}
};

namespace UE::Core::Private
{
	template <typename ToType, typename FromType>
	struct TStringCastSelector;

	template <>
	struct TStringCastSelector<UTF8CHAR, TCHAR>
	{
		using Type = FTCHARToUTF8;
	};

	template <>
	struct TStringCastSelector<TCHAR, UTF8CHAR>
	{
		using Type = FUTF8ToTCHAR;
	};

	template <>
	struct TStringCastSelector<ANSICHAR, TCHAR>
	{
		using Type = FTCHARToANSI;
	};

	template <>
	struct TStringCastSelector<TCHAR, ANSICHAR>
	{
		using Type = FANSIToTCHAR;
	};

	// Same type: no copy, just a view with the same interface.
	template <typename CharType>
	class TPassthroughCast
	{
	public:
		explicit TPassthroughCast(const CharType* InSource)
			: Source(InSource)
			, SourceLength(NullTerminatedLength(InSource))
		{
		}

		TPassthroughCast(const CharType* InSource, int32 InLength)
			: Source(InSource)
			, SourceLength(InLength)
		{
		}

		const CharType* Get() const
		{
			return Source;
		}

		int32 Length() const
		{
			return SourceLength;
		}

	private:
		const CharType* Source;
		int32 SourceLength;
	};

	template <typename CharType>
	struct TStringCastSelector<CharType, CharType>
	{
		using Type = TPassthroughCast<CharType>;
	};
}

template <typename ToType, typename FromType>
auto StringCast(const FromType* Source)
{
	return typename UE::Core::Private::TStringCastSelector<ToType, std::remove_cv_t<FromType>>::Type(Source);
}

template <typename ToType, typename FromType>
auto StringCast(const FromType* Source, int32 Length)
{
	return typename UE::Core::Private::TStringCastSelector<ToType, std::remove_cv_t<FromType>>::Type(Source, Length);
}

// The pointers live until the end of the full expression, as in the engine.
#define TCHAR_TO_UTF8(str) (ANSICHAR*)FTCHARToUTF8((const TCHAR*)(str)).Get()
#define UTF8_TO_TCHAR(str) (TCHAR*)FUTF8ToTCHAR((const ANSICHAR*)(str)).Get()
#define TCHAR_TO_ANSI(str) (ANSICHAR*)FTCHARToANSI((const TCHAR*)(str)).Get()
#define ANSI_TO_TCHAR(str) (TCHAR*)FANSIToTCHAR((const ANSICHAR*)(str)).Get()

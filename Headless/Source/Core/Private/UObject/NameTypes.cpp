#include "UObject/NameTypes.h"

#include "Containers/StringConv.h"

#include <memory>
#include <mutex>
#include <shared_mutex>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace
{
	using FNameText = std::u16string;
	using FNameTextView = std::u16string_view;

	FNameText FoldCase(FNameTextView Text)
	{
		FNameText Folded(Text);
		for (char16_t& Char : Folded)
		{
			Char = FGenericPlatformStricmp::ToLowerAscii(Char);
		}
		return Folded;
	}

	/**
	 * Every distinct casing gets an entry; the comparison map sends a case-folded name to the entry
	 * of the casing that was registered first. Entries are never removed, so indices stay valid for
	 * the life of the process. Names are made during static initialisation of every module, so the
	 * table is created on first use and never destroyed.
	 */
	class FNameTable
	{
	public:
		static FNameTable& Get()
		{
			static FNameTable* const Table = new FNameTable();
			return *Table;
		}

		struct FIds
		{
			uint32 Comparison = 0;
			uint32 Display = 0;
			bool bFound = false;
		};

		FIds FindOrAdd(FNameTextView Text, EFindName FindType)
		{
			const FNameText Folded = FoldCase(Text);
			{
				std::shared_lock Lock(Mutex);
				FIds Ids;
				if (Lookup(Text, Folded, Ids) || FindType == FNAME_Find)
				{
					return Ids;
				}
			}

			std::unique_lock Lock(Mutex);
			FIds Ids;
			if (Lookup(Text, Folded, Ids))
			{
				return Ids;
			}
			const uint32 NewIndex = uint32(Entries.size());
			Entries.push_back(std::make_unique<FNameText>(Text));
			DisplayMap.emplace(FNameText(Text), NewIndex);
			if (auto Found = ComparisonMap.find(Folded); Found != ComparisonMap.end())
			{
				return { Found->second, NewIndex, true };
			}
			ComparisonMap.emplace(Folded, NewIndex);
			return { NewIndex, NewIndex, true };
		}

		FNameText Resolve(uint32 Index) const
		{
			std::shared_lock Lock(Mutex);
			return Index < Entries.size() ? *Entries[Index] : FNameText(u"None");
		}

		bool IsValidIndex(uint32 Index) const
		{
			std::shared_lock Lock(Mutex);
			return Index < Entries.size();
		}

	private:
		FNameTable()
		{
			// Entry 0 is the none name, so that a zeroed FName is NAME_None.
			Entries.push_back(std::make_unique<FNameText>(u"None"));
			DisplayMap.emplace(u"None", 0);
			ComparisonMap.emplace(u"none", 0);
		}

		// Caller holds the lock.
		bool Lookup(FNameTextView Text, const FNameText& Folded, FIds& OutIds) const
		{
			const auto Comparison = ComparisonMap.find(Folded);
			if (Comparison == ComparisonMap.end())
			{
				return false;
			}
			OutIds.Comparison = Comparison->second;
			OutIds.bFound = true;
			const auto Display = DisplayMap.find(FNameText(Text));
			OutIds.Display = Display != DisplayMap.end() ? Display->second : Comparison->second;
			return Display != DisplayMap.end();
		}

		mutable std::shared_mutex Mutex;
		std::vector<std::unique_ptr<FNameText>> Entries;
		std::unordered_map<FNameText, uint32> ComparisonMap;
		std::unordered_map<FNameText, uint32> DisplayMap;
	};

	// "Base_123" splits into "Base" and 123 unless the digits have a leading zero or overflow an int32.
	bool SplitNumber(const TCHAR* Name, int32& InOutLen, int32& OutInternalNumber)
	{
		int32 Digits = 0;
		while (Digits < InOutLen && FChar::IsDigit(Name[InOutLen - 1 - Digits]))
		{
			++Digits;
		}
		const int32 UnderscoreIndex = InOutLen - Digits - 1;
		if (Digits == 0 || Digits > 10 || UnderscoreIndex < 1 || Name[UnderscoreIndex] != TEXT('_'))
		{
			return false;
		}
		if (Digits > 1 && Name[UnderscoreIndex + 1] == TEXT('0'))
		{
			return false;
		}
		int64 Value = 0;
		for (int32 Index = UnderscoreIndex + 1; Index < InOutLen; ++Index)
		{
			Value = Value * 10 + (Name[Index] - TEXT('0'));
		}
		if (Value >= 0x7fffffff)
		{
			return false;
		}
		InOutLen = UnderscoreIndex;
		OutInternalNumber = NAME_EXTERNAL_TO_INTERNAL(int32(Value));
		return true;
	}

	void AppendNameText(FString& Out, const FNameText& Text)
	{
		Out.AppendChars(reinterpret_cast<const TCHAR*>(Text.data()), int32(Text.size()));
	}
}

FName::FName(const TCHAR* Name, EFindName FindType)
{
	Init(Name, Name ? FCString::Strlen(Name) : 0, NAME_NO_NUMBER_INTERNAL, true, FindType);
}

FName::FName(const ANSICHAR* Name, EFindName FindType)
{
	const FString Wide(Name);
	Init(*Wide, Wide.Len(), NAME_NO_NUMBER_INTERNAL, true, FindType);
}

FName::FName(const FString& Name, EFindName FindType)
{
	Init(*Name, Name.Len(), NAME_NO_NUMBER_INTERNAL, true, FindType);
}

FName::FName(FStringView Name, EFindName FindType)
{
	Init(Name.GetData(), Name.Len(), NAME_NO_NUMBER_INTERNAL, true, FindType);
}

FName::FName(int32 Len, const TCHAR* Name, EFindName FindType)
{
	Init(Name, Len, NAME_NO_NUMBER_INTERNAL, true, FindType);
}

FName::FName(const TCHAR* Name, int32 InNumber, EFindName FindType)
{
	Init(Name, Name ? FCString::Strlen(Name) : 0, InNumber, false, FindType);
}

void FName::Init(const TCHAR* Name, int32 Len, int32 InNumber, bool bSplitNumber, EFindName FindType)
{
	int32 InternalNumber = InNumber;
	if (bSplitNumber && !SplitNumber(Name, Len, InternalNumber))
	{
		InternalNumber = NAME_NO_NUMBER_INTERNAL;
	}
	if (Len <= 0)
	{
		*this = FName();
		return;
	}
	const FNameTable::FIds Ids = FNameTable::Get().FindOrAdd(FNameTextView(reinterpret_cast<const char16_t*>(Name), size_t(Len)), FindType);
	if (!Ids.bFound)
	{
		*this = FName();
		return;
	}
	ComparisonIndex = FNameEntryId::FromUnstableInt(Ids.Comparison);
	// Every casing of "None" is the none name and prints as such.
	DisplayIndex = ComparisonIndex.IsNone() ? FNameEntryId() : FNameEntryId::FromUnstableInt(Ids.Display);
	Number = uint32(InternalNumber);
}

bool FName::IsValid() const
{
	return FNameTable::Get().IsValidIndex(ComparisonIndex.ToUnstableInt()) && FNameTable::Get().IsValidIndex(DisplayIndex.ToUnstableInt());
}

FString FName::ToString() const
{
	FString Out;
	AppendString(Out);
	return Out;
}

void FName::ToString(FString& Out) const
{
	Out.Reset();
	AppendString(Out);
}

void FName::AppendString(FString& Out) const
{
	AppendNameText(Out, FNameTable::Get().Resolve(DisplayIndex.ToUnstableInt()));
	if (Number != NAME_NO_NUMBER_INTERNAL)
	{
		Out.Appendf(TEXT("_%d"), NAME_INTERNAL_TO_EXTERNAL(int32(Number)));
	}
}

FString FName::GetPlainNameString() const
{
	FString Out;
	AppendNameText(Out, FNameTable::Get().Resolve(DisplayIndex.ToUnstableInt()));
	return Out;
}

int32 FName::Compare(const FName& Other) const
{
	if (ComparisonIndex != Other.ComparisonIndex)
	{
		const FNameText Mine = FNameTable::Get().Resolve(ComparisonIndex.ToUnstableInt());
		const FNameText Theirs = FNameTable::Get().Resolve(Other.ComparisonIndex.ToUnstableInt());
		const int32 Diff = FCString::Stricmp(reinterpret_cast<const TCHAR*>(Mine.c_str()), reinterpret_cast<const TCHAR*>(Theirs.c_str()));
		if (Diff != 0)
		{
			return Diff;
		}
	}
	return Number < Other.Number ? -1 : (Number > Other.Number ? 1 : 0);
}

bool operator==(const FName& A, const TCHAR* B)
{
	if (B == nullptr || *B == 0)
	{
		return A.IsNone();
	}
	return FCString::Stricmp(*A.ToString(), B) == 0;
}

// Ini files as the engine reads them: [Section] headers, Key=Value lines, array operations
// (+Key adds a value once, .Key adds it again, -Key removes that value, !Key clears the key),
// ';' comment lines and quoted values with \" and \\ escapes.
//
// A config is named either by a branch ("Game", the value of GGameIni), which reads
// Default<Branch>.ini from the project's Config directory, or by the path of an ini file. Files are
// read the first time they are asked for; a missing branch file is an empty config. As in the
// engine, a branch takes the command line's overrides over its file as it is read:
//   -ini:Game:[/Script/Module.Class]:Key=Value,[Section]:OtherKey=Value
#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/StringView.h"
#include "Containers/UnrealString.h"
#include "Logging/LogMacros.h"
#include "Templates/Tuple.h"
#include "Templates/UniquePtr.h"
#include "UObject/NameTypes.h"

CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogConfig, Log, All);

struct FConfigValue
{
	FConfigValue() = default;
	explicit FConfigValue(const FString& InValue)
		: SavedValue(InValue)
	{
	}

	const FString& GetValue() const
	{
		return SavedValue;
	}

	const FString& GetSavedValue() const
	{
		return SavedValue;
	}

	bool operator==(const FConfigValue& Other) const
	{
		return SavedValue.Equals(Other.SavedValue);
	}

private:
	FString SavedValue;
};

/** The values of one section in file order; a key may repeat (that is how arrays are stored). */
class FConfigSection
{
public:
	using FPair = TPair<FName, FConfigValue>;

	CORE_API void Add(FName Key, const FString& Value);
	/** The first value of Key, or null. */
	CORE_API const FConfigValue* Find(FName Key) const;
	/** Every value of Key, in file order. */
	CORE_API void MultiFind(FName Key, TArray<FConfigValue>& OutValues) const;
	/** Removes every value of Key; returns how many. */
	CORE_API int32 Remove(FName Key);
	/** Removes the values of Key equal to Value; returns how many. */
	CORE_API int32 RemoveSingle(FName Key, const FString& Value);

	int32 Num() const
	{
		return Pairs.Num();
	}

	TArray<FPair>::RangedForConstIteratorType begin() const
	{
		return Pairs.begin();
	}

	TArray<FPair>::RangedForConstIteratorType end() const
	{
		return Pairs.end();
	}

private:
	TArray<FPair> Pairs;
};

/** One ini file: its sections by name (names compare without regard to case). */
class FConfigFile : public TMap<FString, FConfigSection>
{
public:
	/** Reads the file; false (leaving this empty) when it cannot be read. */
	CORE_API bool Read(const FString& Filename);
	/** Applies ini text to the sections already held. FileHint names the text in warnings. */
	CORE_API void ProcessInputFileContents(FStringView Contents, const FString& FileHint);

	CORE_API const FConfigSection* FindSection(const FString& SectionName) const;
	CORE_API bool GetString(const TCHAR* Section, const TCHAR* Key, FString& Value) const;

	/** Where the text came from; empty when it was given directly. */
	FString Name;
};

class FConfigCacheIni
{
public:
	CORE_API FConfigCacheIni();
	CORE_API ~FConfigCacheIni();

	/** Forgets every loaded file, so that each is read again from the current project when next asked for. */
	static CORE_API void InitializeConfigSystem();

	/** The config named Filename (a branch or an ini path), read now if it is not cached; null for a path that names no file. */
	CORE_API FConfigFile* Find(const FString& Filename);
	CORE_API FConfigFile* FindConfigFile(const FString& Filename);
	/** Reads the config again from disk, replacing what is cached. */
	CORE_API void LoadFile(const FString& Filename);
	CORE_API void UnloadFile(const FString& Filename);
	/** Nothing is written back; with bRemoveFromCache the file (or every file) is dropped from the cache. */
	CORE_API void Flush(bool bRemoveFromCache, const FString& Filename = FString());
	CORE_API TArray<FString> GetFilenames() const;

	// Reads leave Value untouched and return false when the key is absent.
	CORE_API bool GetString(const TCHAR* Section, const TCHAR* Key, FString& Value, const FString& Filename);
	CORE_API bool GetInt(const TCHAR* Section, const TCHAR* Key, int32& Value, const FString& Filename);
	CORE_API bool GetInt64(const TCHAR* Section, const TCHAR* Key, int64& Value, const FString& Filename);
	CORE_API bool GetFloat(const TCHAR* Section, const TCHAR* Key, float& Value, const FString& Filename);
	CORE_API bool GetDouble(const TCHAR* Section, const TCHAR* Key, double& Value, const FString& Filename);
	CORE_API bool GetBool(const TCHAR* Section, const TCHAR* Key, bool& Value, const FString& Filename);
	/** Every value of Key in file order; returns how many (out_Arr is emptied first). */
	CORE_API int32 GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& out_Arr, const FString& Filename);
	/** The section as "Key=Value" lines; false when there is no such section. */
	CORE_API bool GetSection(const TCHAR* Section, TArray<FString>& Result, const FString& Filename);
	CORE_API bool DoesSectionExist(const TCHAR* Section, const FString& Filename);

	// Writes change the cached config only.
	CORE_API void SetString(const TCHAR* Section, const TCHAR* Key, const TCHAR* Value, const FString& Filename);
	CORE_API void SetArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value, const FString& Filename);

	/** The ini file a branch name stands for: "Game" -> <Project>/Config/DefaultGame.ini. */
	static CORE_API FString GetBranchFilename(const FString& BranchName);

private:
	const FConfigValue* FindValue(const TCHAR* Section, const TCHAR* Key, const FString& Filename);
	FConfigSection& FindOrAddSection(const TCHAR* Section, const FString& Filename);

	TMap<FString, TUniquePtr<FConfigFile>> Files;
};

/** Always set in the headless build; the config system needs no start-up call. */
extern CORE_API FConfigCacheIni* GConfig;

// The names of the engine's config branches, as engine code passes them to GConfig.
extern CORE_API FString GEngineIni;
extern CORE_API FString GGameIni;
extern CORE_API FString GInputIni;
extern CORE_API FString GGameUserSettingsIni;

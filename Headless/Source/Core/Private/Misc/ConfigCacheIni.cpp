#include "Misc/ConfigCacheIni.h"

#include "Misc/CString.h"
#include "Misc/Char.h"
#include "Misc/CommandLine.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

DEFINE_LOG_CATEGORY(LogConfig);

FString GEngineIni(TEXT("Engine"));
FString GGameIni(TEXT("Game"));
FString GInputIni(TEXT("Input"));
FString GGameUserSettingsIni(TEXT("GameUserSettings"));

namespace
{
	FConfigCacheIni& GetConfigSingleton()
	{
		static FConfigCacheIni Singleton;
		return Singleton;
	}

	bool IsBranchName(const FString& Filename)
	{
		return !Filename.IsEmpty() && !Filename.Contains(TEXT("/")) && !Filename.Contains(TEXT("\\")) && !Filename.EndsWith(TEXT(".ini"));
	}

	// Strips the quotes of a quoted value and resolves its escapes; other values are kept as written.
	FString UnquoteValue(const FString& Value)
	{
		if (Value.Len() < 2 || Value[0] != TEXT('"') || Value[Value.Len() - 1] != TEXT('"'))
		{
			return Value;
		}
		FString Result;
		for (int32 Index = 1; Index < Value.Len() - 1; ++Index)
		{
			TCHAR Char = Value[Index];
			if (Char == TEXT('\\') && Index + 1 < Value.Len() - 1)
			{
				const TCHAR Next = Value[++Index];
				Char = Next == TEXT('n') ? TEXT('\n') : (Next == TEXT('t') ? TEXT('\t') : Next);
			}
			Result.AppendChar(Char);
		}
		return Result;
	}
}

namespace
{
	/** The value of a switch that starts at Start: a quoted run, or everything up to the next blank. */
	FString ReadSwitchValue(const FString& CommandLine, int32 Start)
	{
		if (Start < CommandLine.Len() && CommandLine[Start] == TEXT('"'))
		{
			int32 End = Start + 1;
			while (End < CommandLine.Len() && CommandLine[End] != TEXT('"'))
			{
				++End;
			}
			return CommandLine.Mid(Start + 1, End - Start - 1);
		}
		int32 End = Start;
		while (End < CommandLine.Len() && !FChar::IsWhitespace(CommandLine[End]))
		{
			++End;
		}
		return CommandLine.Mid(Start, End - Start);
	}

	/**
	 * Applies the command line's "-ini:<Branch>:[Section]:Key=Value" switches for this branch, as the
	 * engine does: several settings may share a switch, separated by commas; each sets its key,
	 * replacing the values the file gave it; the last ']:' ends the section name.
	 */
	void OverrideFromCommandline(FConfigFile& File, const FString& BranchName)
	{
		const FString CommandLine(FCommandLine::Get());
		const FString Switch = FString(TEXT("-ini:")) + BranchName + TEXT(":");
		for (int32 Found = CommandLine.Find(Switch, ESearchCase::IgnoreCase); Found != INDEX_NONE;
			Found = CommandLine.Find(Switch, ESearchCase::IgnoreCase, ESearchDir::FromStart, Found + Switch.Len()))
		{
			if (Found > 0 && !FChar::IsWhitespace(CommandLine[Found - 1]) && CommandLine[Found - 1] != TEXT('"'))
			{
				continue;
			}
			TArray<FString> Settings;
			ReadSwitchValue(CommandLine, Found + Switch.Len()).ParseIntoArray(Settings, TEXT(","), true);
			for (const FString& Setting : Settings)
			{
				FString SectionAndKey;
				FString Value;
				if (!Setting.Split(TEXT("="), &SectionAndKey, &Value))
				{
					continue;
				}
				const int32 SectionEnd = SectionAndKey.Find(TEXT("]:"), ESearchCase::CaseSensitive, ESearchDir::FromEnd);
				if (SectionEnd == INDEX_NONE || SectionEnd == 0)
				{
					continue;
				}
				const FString Section = SectionAndKey.Left(SectionEnd).Replace(TEXT("["), TEXT("")).Replace(TEXT("]"), TEXT(""));
				const FName Key(*SectionAndKey.Mid(SectionEnd + 2));
				if (Key.IsNone())
				{
					continue;
				}
				FConfigSection& Target = File.FindOrAdd(Section);
				Target.Remove(Key);
				Target.Add(Key, Value);
				UE_LOG(LogConfig, Log, TEXT("Command line sets [%s] %s in %s"), *Section, *Key.ToString(), *BranchName);
			}
		}
	}
}

FConfigCacheIni* GConfig = &GetConfigSingleton();

// FConfigSection

void FConfigSection::Add(FName Key, const FString& Value)
{
	Pairs.Add(FPair(Key, FConfigValue(Value)));
}

const FConfigValue* FConfigSection::Find(FName Key) const
{
	const FPair* Pair = Pairs.FindByPredicate([Key](const FPair& Candidate) { return Candidate.Key == Key; });
	return Pair ? &Pair->Value : nullptr;
}

void FConfigSection::MultiFind(FName Key, TArray<FConfigValue>& OutValues) const
{
	for (const FPair& Pair : Pairs)
	{
		if (Pair.Key == Key)
		{
			OutValues.Add(Pair.Value);
		}
	}
}

int32 FConfigSection::Remove(FName Key)
{
	return Pairs.RemoveAll([Key](const FPair& Pair) { return Pair.Key == Key; });
}

int32 FConfigSection::RemoveSingle(FName Key, const FString& Value)
{
	return Pairs.RemoveAll([Key, &Value](const FPair& Pair) { return Pair.Key == Key && Pair.Value.GetValue().Equals(Value); });
}

// FConfigFile

bool FConfigFile::Read(const FString& Filename)
{
	Empty();
	Name = Filename;
	FString Text;
	if (!FFileHelper::LoadFileToString(Text, *Filename))
	{
		return false;
	}
	ProcessInputFileContents(FStringView(Text), Filename);
	return true;
}

void FConfigFile::ProcessInputFileContents(FStringView Contents, const FString& FileHint)
{
	TArray<FString> Lines;
	FString(Contents).ParseIntoArrayLines(Lines, false);

	FConfigSection* Section = nullptr;
	for (const FString& RawLine : Lines)
	{
		const FString Line = RawLine.TrimStartAndEnd();
		if (Line.IsEmpty() || Line[0] == TEXT(';'))
		{
			continue;
		}
		if (Line[0] == TEXT('[') && Line[Line.Len() - 1] == TEXT(']'))
		{
			Section = &FindOrAdd(Line.Mid(1, Line.Len() - 2).TrimStartAndEnd());
			continue;
		}

		int32 Equals = INDEX_NONE;
		if (Section == nullptr || !Line.FindChar(TEXT('='), Equals))
		{
			UE_LOG(LogConfig, Verbose, TEXT("%s: ignored a line outside any section or without '=': %s"), *FileHint, *Line);
			continue;
		}
		FString Key = Line.Left(Equals).TrimEnd();
		const FString Value = UnquoteValue(Line.Mid(Equals + 1).TrimStart());
		const TCHAR Command = Key.IsEmpty() ? TCHAR(0) : Key[0];
		if (Command == TEXT('+') || Command == TEXT('.') || Command == TEXT('-') || Command == TEXT('!'))
		{
			Key.RightChopInline(1);
		}
		const FName KeyName(*Key);
		if (KeyName.IsNone())
		{
			continue;
		}

		switch (Command)
		{
		case TEXT('+'):
		{
			TArray<FConfigValue> Existing;
			Section->MultiFind(KeyName, Existing);
			if (!Existing.Contains(FConfigValue(Value)))
			{
				Section->Add(KeyName, Value);
			}
			break;
		}
		case TEXT('.'):
			Section->Add(KeyName, Value);
			break;
		case TEXT('-'):
			Section->RemoveSingle(KeyName, Value);
			break;
		case TEXT('!'):
			Section->Remove(KeyName);
			break;
		default:
			// A plain line sets the key: it replaces whatever values it had.
			Section->Remove(KeyName);
			Section->Add(KeyName, Value);
			break;
		}
	}
}

const FConfigSection* FConfigFile::FindSection(const FString& SectionName) const
{
	return TMap<FString, FConfigSection>::Find(SectionName);
}

bool FConfigFile::GetString(const TCHAR* Section, const TCHAR* Key, FString& Value) const
{
	const FConfigSection* Found = FindSection(FString(Section));
	const FConfigValue* ConfigValue = Found ? Found->Find(FName(Key)) : nullptr;
	if (ConfigValue == nullptr)
	{
		return false;
	}
	Value = ConfigValue->GetValue();
	return true;
}

// FConfigCacheIni

FConfigCacheIni::FConfigCacheIni() = default;

FConfigCacheIni::~FConfigCacheIni() = default;

void FConfigCacheIni::InitializeConfigSystem()
{
	GConfig->Flush(true);
}

FString FConfigCacheIni::GetBranchFilename(const FString& BranchName)
{
	return FPaths::ProjectConfigDir() + TEXT("Default") + BranchName + TEXT(".ini");
}

FConfigFile* FConfigCacheIni::Find(const FString& Filename)
{
	if (TUniquePtr<FConfigFile>* Cached = Files.Find(Filename))
	{
		return Cached->Get();
	}
	if (Filename.IsEmpty())
	{
		return nullptr;
	}

	TUniquePtr<FConfigFile> File = MakeUnique<FConfigFile>();
	if (IsBranchName(Filename))
	{
		const FString Path = GetBranchFilename(Filename);
		if (!File->Read(Path))
		{
			// A project need not configure anything: its settings then keep their defaults.
			UE_LOG(LogConfig, Log, TEXT("No %s config at %s; using defaults"), *Filename, *Path);
		}
		OverrideFromCommandline(*File, Filename);
	}
	else if (!File->Read(Filename))
	{
		return nullptr;
	}
	FConfigFile* Result = File.Get();
	Files.Add(Filename, MoveTemp(File));
	return Result;
}

FConfigFile* FConfigCacheIni::FindConfigFile(const FString& Filename)
{
	return Find(Filename);
}

void FConfigCacheIni::LoadFile(const FString& Filename)
{
	UnloadFile(Filename);
	Find(Filename);
}

void FConfigCacheIni::UnloadFile(const FString& Filename)
{
	Files.Remove(Filename);
}

void FConfigCacheIni::Flush(bool bRemoveFromCache, const FString& Filename)
{
	if (!bRemoveFromCache)
	{
		return;
	}
	if (Filename.IsEmpty())
	{
		Files.Empty();
	}
	else
	{
		UnloadFile(Filename);
	}
}

TArray<FString> FConfigCacheIni::GetFilenames() const
{
	TArray<FString> Result;
	for (const auto& Pair : Files)
	{
		Result.Add(Pair.Key);
	}
	return Result;
}

const FConfigValue* FConfigCacheIni::FindValue(const TCHAR* Section, const TCHAR* Key, const FString& Filename)
{
	const FConfigFile* File = Find(Filename);
	const FConfigSection* Found = File ? File->FindSection(FString(Section)) : nullptr;
	return Found ? Found->Find(FName(Key)) : nullptr;
}

bool FConfigCacheIni::GetString(const TCHAR* Section, const TCHAR* Key, FString& Value, const FString& Filename)
{
	const FConfigValue* Found = FindValue(Section, Key, Filename);
	if (Found == nullptr)
	{
		return false;
	}
	Value = Found->GetValue();
	return true;
}

bool FConfigCacheIni::GetInt(const TCHAR* Section, const TCHAR* Key, int32& Value, const FString& Filename)
{
	FString Text;
	if (!GetString(Section, Key, Text, Filename))
	{
		return false;
	}
	Value = FCString::Atoi(*Text);
	return true;
}

bool FConfigCacheIni::GetInt64(const TCHAR* Section, const TCHAR* Key, int64& Value, const FString& Filename)
{
	FString Text;
	if (!GetString(Section, Key, Text, Filename))
	{
		return false;
	}
	Value = FCString::Atoi64(*Text);
	return true;
}

bool FConfigCacheIni::GetFloat(const TCHAR* Section, const TCHAR* Key, float& Value, const FString& Filename)
{
	FString Text;
	if (!GetString(Section, Key, Text, Filename))
	{
		return false;
	}
	Value = FCString::Atof(*Text);
	return true;
}

bool FConfigCacheIni::GetDouble(const TCHAR* Section, const TCHAR* Key, double& Value, const FString& Filename)
{
	FString Text;
	if (!GetString(Section, Key, Text, Filename))
	{
		return false;
	}
	Value = FCString::Atod(*Text);
	return true;
}

bool FConfigCacheIni::GetBool(const TCHAR* Section, const TCHAR* Key, bool& Value, const FString& Filename)
{
	FString Text;
	if (!GetString(Section, Key, Text, Filename))
	{
		return false;
	}
	Value = FCString::ToBool(*Text);
	return true;
}

int32 FConfigCacheIni::GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& out_Arr, const FString& Filename)
{
	out_Arr.Empty();
	const FConfigFile* File = Find(Filename);
	const FConfigSection* Found = File ? File->FindSection(FString(Section)) : nullptr;
	if (Found)
	{
		TArray<FConfigValue> Values;
		Found->MultiFind(FName(Key), Values);
		for (const FConfigValue& Value : Values)
		{
			out_Arr.Add(Value.GetValue());
		}
	}
	return out_Arr.Num();
}

bool FConfigCacheIni::GetSection(const TCHAR* Section, TArray<FString>& Result, const FString& Filename)
{
	Result.Empty();
	const FConfigFile* File = Find(Filename);
	const FConfigSection* Found = File ? File->FindSection(FString(Section)) : nullptr;
	if (Found == nullptr)
	{
		return false;
	}
	for (const FConfigSection::FPair& Pair : *Found)
	{
		Result.Add(Pair.Key.ToString() + TEXT("=") + Pair.Value.GetValue());
	}
	return true;
}

bool FConfigCacheIni::DoesSectionExist(const TCHAR* Section, const FString& Filename)
{
	const FConfigFile* File = Find(Filename);
	return File && File->FindSection(FString(Section)) != nullptr;
}

FConfigSection& FConfigCacheIni::FindOrAddSection(const TCHAR* Section, const FString& Filename)
{
	FConfigFile* File = Find(Filename);
	if (File == nullptr)
	{
		TUniquePtr<FConfigFile> NewFile = MakeUnique<FConfigFile>();
		NewFile->Name = Filename;
		File = NewFile.Get();
		Files.Add(Filename, MoveTemp(NewFile));
	}
	return File->FindOrAdd(FString(Section));
}

void FConfigCacheIni::SetString(const TCHAR* Section, const TCHAR* Key, const TCHAR* Value, const FString& Filename)
{
	FConfigSection& Found = FindOrAddSection(Section, Filename);
	Found.Remove(FName(Key));
	Found.Add(FName(Key), FString(Value));
}

void FConfigCacheIni::SetArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value, const FString& Filename)
{
	FConfigSection& Found = FindOrAddSection(Section, Filename);
	Found.Remove(FName(Key));
	for (const FString& Element : Value)
	{
		Found.Add(FName(Key), Element);
	}
}

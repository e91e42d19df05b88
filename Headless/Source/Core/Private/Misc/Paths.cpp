#include "Misc/Paths.h"

#include "Containers/StringConv.h"
#include "Math/UnrealMathUtility.h"

#include <filesystem>
#include <system_error>

namespace
{
	FString ProjectFilePath;

	std::filesystem::path ToNativePath(const FString& Path)
	{
		const FTCHARToUTF8 Utf8(*Path);
		return std::filesystem::path(reinterpret_cast<const char8_t*>(Utf8.Get()));
	}

	FString StartDir()
	{
		std::error_code Error;
		const std::u8string Current = std::filesystem::current_path(Error).generic_u8string();
		FString Result(int32(Current.size()), Current.data());
		if (!Result.EndsWith(TEXT("/")))
		{
			Result += TEXT("/");
		}
		return Result;
	}

	// Index just past the last '/', or 0.
	int32 FileNameStart(const FString& Path)
	{
		int32 Slash = INDEX_NONE;
		int32 Backslash = INDEX_NONE;
		Path.FindLastChar(TEXT('/'), Slash);
		Path.FindLastChar(TEXT('\\'), Backslash);
		return FMath::Max(Slash, Backslash) + 1;
	}

	// Index of the extension's dot, or INDEX_NONE when the file name has none.
	int32 ExtensionDot(const FString& Path)
	{
		int32 Dot = INDEX_NONE;
		if (Path.FindLastChar(TEXT('.'), Dot) && Dot >= FileNameStart(Path))
		{
			return Dot;
		}
		return INDEX_NONE;
	}
}

FString FPaths::ProjectDir()
{
	if (ProjectFilePath.IsEmpty())
	{
		return StartDir();
	}
	return GetPath(ProjectFilePath) + TEXT("/");
}

FString FPaths::ProjectContentDir()
{
	return ProjectDir() + TEXT("Content/");
}

FString FPaths::ProjectConfigDir()
{
	return ProjectDir() + TEXT("Config/");
}

FString FPaths::ProjectSavedDir()
{
	return ProjectDir() + TEXT("Saved/");
}

void FPaths::SetProjectFilePath(const FString& NewGameProjectFilePath)
{
	ProjectFilePath = NewGameProjectFilePath.IsEmpty() ? FString() : ConvertRelativePathToFull(NewGameProjectFilePath);
}

const FString& FPaths::GetProjectFilePath()
{
	return ProjectFilePath;
}

bool FPaths::IsProjectFilePathSet()
{
	return !ProjectFilePath.IsEmpty();
}

FString FPaths::GetExtension(const FString& InPath, bool bIncludeDot)
{
	const int32 Dot = ExtensionDot(InPath);
	if (Dot == INDEX_NONE)
	{
		return FString();
	}
	return InPath.Mid(bIncludeDot ? Dot : Dot + 1);
}

FString FPaths::GetCleanFilename(const FString& InPath)
{
	return InPath.Mid(FileNameStart(InPath));
}

FString FPaths::GetBaseFilename(const FString& InPath, bool bRemovePath)
{
	const int32 Dot = ExtensionDot(InPath);
	const FString WithoutExtension = Dot == INDEX_NONE ? InPath : InPath.Left(Dot);
	return bRemovePath ? GetCleanFilename(WithoutExtension) : WithoutExtension;
}

FString FPaths::GetPath(const FString& InPath)
{
	const int32 Start = FileNameStart(InPath);
	return Start > 0 ? InPath.Left(Start - 1) : FString();
}

FString FPaths::ChangeExtension(const FString& InPath, const FString& InNewExtension)
{
	const int32 Dot = ExtensionDot(InPath);
	if (Dot == INDEX_NONE)
	{
		return InPath;
	}
	return SetExtension(InPath, InNewExtension);
}

FString FPaths::SetExtension(const FString& InPath, const FString& InNewExtension)
{
	const int32 Dot = ExtensionDot(InPath);
	FString Result = Dot == INDEX_NONE ? InPath : InPath.Left(Dot);
	if (!InNewExtension.IsEmpty() && !InNewExtension.StartsWith(TEXT(".")))
	{
		Result += TEXT(".");
	}
	Result += InNewExtension;
	return Result;
}

bool FPaths::FileExists(const FString& InPath)
{
	std::error_code Error;
	return !InPath.IsEmpty() && std::filesystem::is_regular_file(ToNativePath(InPath), Error);
}

bool FPaths::DirectoryExists(const FString& InPath)
{
	std::error_code Error;
	return !InPath.IsEmpty() && std::filesystem::is_directory(ToNativePath(InPath), Error);
}

bool FPaths::IsRelative(const FString& InPath)
{
	return !(InPath.StartsWith(TEXT("/")) || InPath.StartsWith(TEXT("\\")));
}

void FPaths::NormalizeFilename(FString& InPath)
{
	InPath.ReplaceCharInline(TEXT('\\'), TEXT('/'));
}

void FPaths::NormalizeDirectoryName(FString& InPath)
{
	NormalizeFilename(InPath);
	if (InPath.Len() > 1 && InPath.EndsWith(TEXT("/")))
	{
		InPath.LeftChopInline(1);
	}
}

bool FPaths::CollapseRelativeDirectories(FString& InPath)
{
	TArray<FString> Parts;
	InPath.ParseIntoArray(Parts, TEXT("/"), false);
	TArray<FString> Kept;
	for (int32 Index = 0; Index < Parts.Num(); ++Index)
	{
		const FString& Part = Parts[Index];
		const bool bFirstOrLast = Index == 0 || Index == Parts.Num() - 1;
		if (Part.Equals(TEXT(".")) || (Part.IsEmpty() && !bFirstOrLast))
		{
			continue;
		}
		if (Part.Equals(TEXT("..")))
		{
			if (Kept.Num() == 0 || (Kept.Num() == 1 && Kept[0].IsEmpty()) || Kept.Last().Equals(TEXT("..")))
			{
				return false;
			}
			Kept.Pop();
			continue;
		}
		Kept.Add(Part);
	}
	InPath = FString::Join(Kept, TEXT("/"));
	return true;
}

FString FPaths::ConvertRelativePathToFull(const FString& InPath)
{
	return ConvertRelativePathToFull(StartDir(), InPath);
}

FString FPaths::ConvertRelativePathToFull(const FString& BasePath, const FString& InPath)
{
	FString Path = InPath;
	NormalizeFilename(Path);
	if (IsRelative(Path))
	{
		FString Base = BasePath;
		NormalizeFilename(Base);
		Path = Base / Path;
	}
	CollapseRelativeDirectories(Path);
	return Path;
}

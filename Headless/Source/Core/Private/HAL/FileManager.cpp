#include "HAL/FileManager.h"

#include "Containers/StringConv.h"
#include "Misc/Paths.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <vector>

namespace
{
	std::filesystem::path ToNativePath(const TCHAR* Path)
	{
		const FTCHARToUTF8 Utf8(Path);
		return std::filesystem::path(reinterpret_cast<const char8_t*>(Utf8.Get()));
	}

	FString FromNativePath(const std::filesystem::path& Path)
	{
		const std::u8string Utf8 = Path.generic_u8string();
		return FString(int32(Utf8.size()), Utf8.data());
	}

	// '*' matches any run, '?' any one character; letters compare without regard to case, as file
	// names do on the engine's desktop platforms.
	bool MatchesWildcard(const TCHAR* Name, const TCHAR* Pattern)
	{
		if (*Pattern == 0)
		{
			return *Name == 0;
		}
		if (*Pattern == u'*')
		{
			for (const TCHAR* Rest = Name;; ++Rest)
			{
				if (MatchesWildcard(Rest, Pattern + 1))
				{
					return true;
				}
				if (*Rest == 0)
				{
					return false;
				}
			}
		}
		if (*Name == 0)
		{
			return false;
		}
		if (*Pattern != u'?' && FChar::ToLower(*Pattern) != FChar::ToLower(*Name))
		{
			return false;
		}
		return MatchesWildcard(Name + 1, Pattern + 1);
	}

	bool IsWanted(const std::filesystem::directory_entry& Entry, bool bFiles, bool bDirectories)
	{
		std::error_code Error;
		return (bFiles && Entry.is_regular_file(Error)) || (bDirectories && Entry.is_directory(Error));
	}

	class FFileManagerGeneric final : public IFileManager
	{
	public:
		virtual bool FileExists(const TCHAR* Filename) override
		{
			std::error_code Error;
			return std::filesystem::is_regular_file(ToNativePath(Filename), Error);
		}

		virtual bool DirectoryExists(const TCHAR* InDirectory) override
		{
			std::error_code Error;
			return std::filesystem::is_directory(ToNativePath(InDirectory), Error);
		}

		virtual int64 FileSize(const TCHAR* Filename) override
		{
			std::error_code Error;
			const std::uintmax_t Size = std::filesystem::file_size(ToNativePath(Filename), Error);
			return Error ? -1 : int64(Size);
		}

		virtual bool MakeDirectory(const TCHAR* Path, bool Tree) override
		{
			std::error_code Error;
			const std::filesystem::path Native = ToNativePath(Path);
			if (Tree)
			{
				std::filesystem::create_directories(Native, Error);
			}
			else
			{
				std::filesystem::create_directory(Native, Error);
			}
			return std::filesystem::is_directory(Native, Error);
		}

		virtual bool Delete(const TCHAR* Filename, bool RequireExists, bool EvenReadOnly, bool Quiet) override
		{
			std::error_code Error;
			const std::filesystem::path Native = ToNativePath(Filename);
			if (!std::filesystem::is_regular_file(Native, Error))
			{
				return !RequireExists && !std::filesystem::exists(Native, Error);
			}
			return std::filesystem::remove(Native, Error);
		}

		virtual bool DeleteDirectory(const TCHAR* Path, bool RequireExists, bool Tree) override
		{
			std::error_code Error;
			const std::filesystem::path Native = ToNativePath(Path);
			if (!std::filesystem::is_directory(Native, Error))
			{
				return !RequireExists;
			}
			if (Tree)
			{
				std::filesystem::remove_all(Native, Error);
			}
			else
			{
				std::filesystem::remove(Native, Error);
			}
			return !std::filesystem::exists(Native, Error);
		}

		virtual void FindFiles(TArray<FString>& FileNames, const TCHAR* Filename, bool Files, bool Directories) override
		{
			FString Wildcard(Filename);
			FPaths::NormalizeFilename(Wildcard);
			const FString Directory = FPaths::GetPath(Wildcard);
			const FString Pattern = FPaths::GetCleanFilename(Wildcard);
			std::vector<std::u16string> Found;
			std::error_code Error;
			for (std::filesystem::directory_iterator It(ToNativePath(Directory.IsEmpty() ? TEXT(".") : *Directory), Error), End; !Error && It != End; It.increment(Error))
			{
				const FString Name = FromNativePath(It->path().filename());
				if (IsWanted(*It, Files, Directories) && MatchesWildcard(*Name, Pattern.IsEmpty() ? TEXT("*") : *Pattern))
				{
					Found.emplace_back(*Name);
				}
			}
			std::sort(Found.begin(), Found.end());
			for (const std::u16string& Name : Found)
			{
				FileNames.Add(FString(int32(Name.size()), Name.data()));
			}
		}

		virtual void FindFilesRecursive(TArray<FString>& FileNames, const TCHAR* StartDirectory, const TCHAR* Filename, bool Files, bool Directories, bool bClearFileNames) override
		{
			if (bClearFileNames)
			{
				FileNames.Empty();
			}
			std::vector<std::u16string> Found;
			std::error_code Error;
			for (std::filesystem::recursive_directory_iterator It(ToNativePath(StartDirectory), Error), End; !Error && It != End; It.increment(Error))
			{
				const FString Name = FromNativePath(It->path().filename());
				if (IsWanted(*It, Files, Directories) && MatchesWildcard(*Name, Filename))
				{
					Found.emplace_back(*FromNativePath(It->path()));
				}
			}
			std::sort(Found.begin(), Found.end());
			for (const std::u16string& Path : Found)
			{
				FileNames.Add(FString(int32(Path.size()), Path.data()));
			}
		}
	};
}

IFileManager& IFileManager::Get()
{
	static FFileManagerGeneric Singleton;
	return Singleton;
}

void IFileManager::FindFiles(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension)
{
	FString Pattern(Directory);
	FString Extension(FileExtension ? FileExtension : TEXT(""));
	Extension.RemoveFromStart(TEXT("."));
	Pattern /= Extension.IsEmpty() ? FString(TEXT("*")) : TEXT("*.") + Extension;
	FindFiles(FoundFiles, *Pattern, true, false);
}

// Paths of the project and helpers that take paths apart. Every path uses '/' and directories end
// with one. The headless build has no launcher to name the project: it is the directory of the
// project file when one is set, otherwise the directory the process started in.
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

#include <utility>

class FPaths
{
public:
	/** The project's root, absolute, ending with '/'. */
	static CORE_API FString ProjectDir();
	static CORE_API FString ProjectContentDir();
	static CORE_API FString ProjectConfigDir();
	static CORE_API FString ProjectSavedDir();

	/** Makes the directory of this file (a .uproject) the project's root; an empty path goes back to the start directory. */
	static CORE_API void SetProjectFilePath(const FString& NewGameProjectFilePath);
	static CORE_API const FString& GetProjectFilePath();
	static CORE_API bool IsProjectFilePathSet();

	/** Joins the parts with '/', as FString's operator/ does. */
	template <typename... PathTypes>
	static FString Combine(PathTypes&&... InPaths)
	{
		const TCHAR* Parts[] = { GetCharPtr(std::forward<PathTypes>(InPaths))... };
		FString Result;
		for (const TCHAR* Part : Parts)
		{
			if (Result.IsEmpty())
			{
				Result += Part;
			}
			else
			{
				Result /= Part;
			}
		}
		return Result;
	}

	/** The text after the last '.' of the file name; empty when the name has no dot. */
	static CORE_API FString GetExtension(const FString& InPath, bool bIncludeDot = false);
	/** The file name with its extension. */
	static CORE_API FString GetCleanFilename(const FString& InPath);
	/** The file name without its extension, and without its directory unless asked to keep it. */
	static CORE_API FString GetBaseFilename(const FString& InPath, bool bRemovePath = true);
	/** The directory part, without a trailing '/'. */
	static CORE_API FString GetPath(const FString& InPath);
	static CORE_API FString ChangeExtension(const FString& InPath, const FString& InNewExtension);
	static CORE_API FString SetExtension(const FString& InPath, const FString& InNewExtension);

	static CORE_API bool FileExists(const FString& InPath);
	static CORE_API bool DirectoryExists(const FString& InPath);
	static CORE_API bool IsRelative(const FString& InPath);

	/** Backslashes become slashes. */
	static CORE_API void NormalizeFilename(FString& InPath);
	/** As NormalizeFilename, and drops a trailing slash (but keeps a lone root). */
	static CORE_API void NormalizeDirectoryName(FString& InPath);
	/** Folds "." and "dir/.." away; false when ".." would climb above the start of the path. */
	static CORE_API bool CollapseRelativeDirectories(FString& InPath);

	/** Relative paths are taken from the start directory; the result is normalised and collapsed. */
	static CORE_API FString ConvertRelativePathToFull(const FString& InPath);
	static CORE_API FString ConvertRelativePathToFull(const FString& BasePath, const FString& InPath);

private:
	static const TCHAR* GetCharPtr(const TCHAR* Path)
	{
		return Path;
	}

	static const TCHAR* GetCharPtr(const FString& Path)
	{
		return *Path;
	}
};

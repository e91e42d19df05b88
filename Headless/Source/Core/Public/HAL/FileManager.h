// The engine's file manager: questions about files and directories on disk. Paths are UTF-16
// strings with '/' separators, absolute or relative to the start directory.
#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/UnrealString.h"

class IFileManager
{
public:
	virtual ~IFileManager() = default;

	static CORE_API IFileManager& Get();

	virtual bool FileExists(const TCHAR* Filename) = 0;
	virtual bool DirectoryExists(const TCHAR* InDirectory) = 0;
	/** Size in bytes, or -1 when there is no such file. */
	virtual int64 FileSize(const TCHAR* Filename) = 0;

	/** Creates the directory; with Tree, its missing parents too. True when it exists afterwards. */
	virtual bool MakeDirectory(const TCHAR* Path, bool Tree = false) = 0;
	virtual bool Delete(const TCHAR* Filename, bool RequireExists = false, bool EvenReadOnly = false, bool Quiet = false) = 0;
	virtual bool DeleteDirectory(const TCHAR* Path, bool RequireExists = false, bool Tree = false) = 0;

	/**
	 * Names (not paths) of the entries matching a wildcard path such as "Icons/T_*.png" ('*' and '?'
	 * in the last part only), sorted. Appends to FileNames.
	 */
	virtual void FindFiles(TArray<FString>& FileNames, const TCHAR* Filename, bool Files, bool Directories) = 0;
	/** Names of the files in Directory, optionally only those with FileExtension ("png" or ".png"). */
	CORE_API void FindFiles(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension = nullptr);
	/** Full paths of the entries below StartDirectory whose name matches the Filename wildcard. */
	virtual void FindFilesRecursive(TArray<FString>& FileNames, const TCHAR* StartDirectory, const TCHAR* Filename, bool Files, bool Directories, bool bClearFileNames = true) = 0;
};

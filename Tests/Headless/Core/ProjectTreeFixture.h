// A throw-away project directory for tests of paths, files and config: the test writes what it
// needs under it and the project root points there until the test ends.
#pragma once

#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Misc/Paths.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace QuorvelTest
{
	inline std::string Utf8(const FString& Text)
	{
		return std::string(TCHAR_TO_UTF8(*Text));
	}

	inline FString FromUtf8(const std::string& Text)
	{
		return FString(int32(Text.size()), reinterpret_cast<const UTF8CHAR*>(Text.data()));
	}

	/** Counts the lines logged in one category while it lives. */
	class FLogLineCounter : public FOutputDevice
	{
	public:
		explicit FLogLineCounter(const TCHAR* InCategory)
			: Category(InCategory)
		{
			GLog->AddOutputDevice(this);
		}

		~FLogLineCounter()
		{
			GLog->RemoveOutputDevice(this);
		}

		virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& InCategory) override
		{
			if (InCategory == Category)
			{
				++Lines;
				LastLine = FString(V);
			}
		}

		FName Category;
		int32 Lines = 0;
		FString LastLine;
	};

	class FProjectTreeTest : public ::testing::Test
	{
	protected:
		virtual void SetUp() override
		{
			std::string Pattern = (std::filesystem::temp_directory_path() / "QuorvelProjectXXXXXX").string();
			ASSERT_NE(mkdtemp(Pattern.data()), nullptr);
			Root = Pattern;
			FPaths::SetProjectFilePath(FromUtf8((Root / "Test.uproject").string()));
			FConfigCacheIni::InitializeConfigSystem();
		}

		virtual void TearDown() override
		{
			FPaths::SetProjectFilePath(FString());
			FConfigCacheIni::InitializeConfigSystem();
			std::error_code Error;
			std::filesystem::remove_all(Root, Error);
		}

		/** Writes bytes to a path relative to the project root, creating its directories. */
		std::filesystem::path WriteFile(const std::string& RelativePath, const std::string& Bytes) const
		{
			const std::filesystem::path Path = Root / RelativePath;
			std::filesystem::create_directories(Path.parent_path());
			std::ofstream(Path, std::ios::binary) << Bytes;
			return Path;
		}

		FString PathOf(const std::string& RelativePath) const
		{
			return FromUtf8((Root / RelativePath).string());
		}

		std::filesystem::path Root;
	};
}

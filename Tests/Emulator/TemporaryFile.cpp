#include "TemporaryFile.h"

#include <gtest/gtest.h>

#include <fstream>

#include <unistd.h>

namespace quorvel::emulator::test
{
	TemporaryFile::TemporaryFile(const std::string& name)
	{
		const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
		const std::string owner = test ? std::string(test->test_suite_name()) + "." + test->name() : "none";
		file = std::filesystem::temp_directory_path() / ("quorvel-emulator-" + std::to_string(::getpid()) + "-" + owner + "-" + name);
		remove();
	}

	TemporaryFile::~TemporaryFile()
	{
		remove();
	}

	void TemporaryFile::write(const std::string& text) const
	{
		std::ofstream(file, std::ios::binary | std::ios::trunc) << text;
	}

	void TemporaryFile::remove() const
	{
		// A SQLite file in WAL mode comes with two companions.
		for (const char* suffix : {"", "-wal", "-shm"})
		{
			std::filesystem::remove(file.string() + suffix);
		}
	}
}

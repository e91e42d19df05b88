// A path in the temporary folder, unique to this process and test, removed before and after use.
#pragma once

#include <filesystem>
#include <string>

namespace quorvel::emulator::test
{
	class TemporaryFile
	{
	public:
		/** `name` ends the file name, e.g. "state.db". */
		explicit TemporaryFile(const std::string& name);
		~TemporaryFile();
		TemporaryFile(const TemporaryFile&) = delete;
		TemporaryFile& operator=(const TemporaryFile&) = delete;

		std::string path() const { return file.string(); }
		void write(const std::string& text) const;

	private:
		void remove() const;

		std::filesystem::path file;
	};
}

#include "Store/Database.h"

#include <sqlite3.h>

#include <stdexcept>

namespace quorvel::emulator
{
	namespace
	{
		[[noreturn]] void fail(sqlite3* db, std::string_view what)
		{
			throw std::runtime_error(std::string(what) + ": " + sqlite3_errmsg(db));
		}
	}

	Database::Database(const std::string& path)
	{
		const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_FULLMUTEX;
		if (sqlite3_open_v2(path.c_str(), &db, flags, nullptr) != SQLITE_OK)
		{
			const std::string message = db ? sqlite3_errmsg(db) : "out of memory";
			sqlite3_close(db);
			throw std::runtime_error("cannot open database " + path + ": " + message);
		}
		sqlite3_busy_timeout(db, 5000);
		execute("PRAGMA foreign_keys = ON");
	}

	Database::~Database()
	{
		sqlite3_close(db);
	}

	void Database::execute(std::string_view sql)
	{
		char* error = nullptr;
		if (sqlite3_exec(db, std::string(sql).c_str(), nullptr, nullptr, &error) != SQLITE_OK)
		{
			const std::string message = error ? error : "unknown error";
			sqlite3_free(error);
			throw std::runtime_error("SQL failed: " + message);
		}
	}

	Statement::Statement(Database& database, std::string_view sql)
		: database(database)
	{
		if (sqlite3_prepare_v2(database.handle(), sql.data(), static_cast<int>(sql.size()), &statement, nullptr) != SQLITE_OK)
		{
			fail(database.handle(), "cannot prepare statement");
		}
	}

	Statement::~Statement()
	{
		sqlite3_finalize(statement);
	}

	Statement& Statement::bind(int index, std::string_view value)
	{
		if (sqlite3_bind_text(statement, index, value.data(), static_cast<int>(value.size()), SQLITE_TRANSIENT) != SQLITE_OK)
		{
			fail(database.handle(), "cannot bind text");
		}
		return *this;
	}

	Statement& Statement::bind(int index, std::int64_t value)
	{
		if (sqlite3_bind_int64(statement, index, value) != SQLITE_OK)
		{
			fail(database.handle(), "cannot bind integer");
		}
		return *this;
	}

	bool Statement::step()
	{
		const int result = sqlite3_step(statement);
		if (result == SQLITE_ROW)
		{
			return true;
		}
		if (result != SQLITE_DONE)
		{
			fail(database.handle(), "statement failed");
		}
		return false;
	}

	void Statement::run()
	{
		while (step())
		{
		}
	}

	std::string Statement::text(int column) const
	{
		const unsigned char* value = sqlite3_column_text(statement, column);
		return value ? std::string(reinterpret_cast<const char*>(value), sqlite3_column_bytes(statement, column)) : std::string();
	}

	std::int64_t Statement::integer(int column) const
	{
		return sqlite3_column_int64(statement, column);
	}

	Transaction::Transaction(Database& database)
		: database(database)
	{
		database.execute("BEGIN IMMEDIATE");
	}

	Transaction::~Transaction()
	{
		if (!done)
		{
			sqlite3_exec(database.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
		}
	}

	void Transaction::commit()
	{
		database.execute("COMMIT");
		done = true;
	}
}

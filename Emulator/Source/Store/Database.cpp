#include "Store/Database.h"

#include <sqlite3.h>

#include <stdexcept>
#include <tuple>

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
			throw std::runtime_error("cannot be opened as a database: " + message);
		}
		sqlite3_busy_timeout(db, 5000);
		try
		{
			// A file that is not a database opens fine and fails here, at its first read.
			execute("PRAGMA foreign_keys = ON");
			if (!isInMemory(path))
			{
				// A write-ahead log with NORMAL sync survives a crash of the emulator without an fsync
				// per request; only a power cut may lose the last moments, which a stand-in can afford.
				execute("PRAGMA journal_mode = WAL");
				execute("PRAGMA synchronous = NORMAL");
			}
		}
		catch (...)
		{
			sqlite3_close(db);
			throw;
		}
	}

	bool Database::isInMemory(std::string_view path)
	{
		return path.empty() || path == ":memory:" || path.starts_with("file::memory:");
	}

	Database::~Database()
	{
		for (const auto& [sql, statements] : idleStatements)
		{
			for (sqlite3_stmt* statement : statements)
			{
				sqlite3_finalize(statement);
			}
		}
		sqlite3_close(db);
	}

	std::pair<sqlite3_stmt*, Database::StatementPool*> Database::acquire(std::string_view sql)
	{
		StatementPool* pool = nullptr;
		{
			std::lock_guard lock(poolMutex);
			auto idle = idleStatements.find(sql);
			if (idle == idleStatements.end())
			{
				idle = idleStatements.emplace(std::string(sql), StatementPool()).first;
			}
			// The map's nodes stay put as it grows, so the pool can be handed out.
			pool = &idle->second;
			if (!pool->empty())
			{
				sqlite3_stmt* statement = pool->back();
				pool->pop_back();
				return {statement, pool};
			}
		}
		sqlite3_stmt* statement = nullptr;
		if (sqlite3_prepare_v3(db, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT, &statement, nullptr) != SQLITE_OK)
		{
			fail(db, "cannot prepare statement");
		}
		return {statement, pool};
	}

	void Database::release(StatementPool& pool, sqlite3_stmt* statement)
	{
		sqlite3_reset(statement);
		sqlite3_clear_bindings(statement);
		std::lock_guard lock(poolMutex);
		pool.push_back(statement);
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
		std::tie(statement, pool) = database.acquire(sql);
	}

	Statement::~Statement()
	{
		database.release(*pool, statement);
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
		Statement(database, "BEGIN IMMEDIATE").run();
	}

	Transaction::~Transaction()
	{
		if (!done)
		{
			Statement rollback(database, "ROLLBACK");
			sqlite3_step(rollback.statement);
		}
	}

	void Transaction::commit()
	{
		Statement(database, "COMMIT").run();
		done = true;
	}
}

// A thin RAII layer over the SQLite C API: one connection, prepared statements, transactions.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace quorvel::emulator
{
	class Database
	{
	public:
		/** Opens or creates the file; ":memory:" gives a private in-memory database. */
		explicit Database(const std::string& path);
		~Database();
		Database(const Database&) = delete;
		Database& operator=(const Database&) = delete;

		/** Runs one or more statements that take no parameters. */
		void execute(std::string_view sql);

		sqlite3* handle() const { return db; }

	private:
		sqlite3* db = nullptr;
	};

	class Statement
	{
	public:
		Statement(Database& database, std::string_view sql);
		~Statement();
		Statement(const Statement&) = delete;
		Statement& operator=(const Statement&) = delete;

		/** Parameters are numbered from 1, as in SQL. Returns *this so binds can be chained. */
		Statement& bind(int index, std::string_view value);
		Statement& bind(int index, std::int64_t value);
		Statement& bind(int index, int value) { return bind(index, static_cast<std::int64_t>(value)); }
		Statement& bind(int index, bool value) { return bind(index, static_cast<std::int64_t>(value ? 1 : 0)); }

		/** True while a row is available; false once the statement is done. */
		bool step();
		/** Steps a statement that returns no rows. */
		void run();

		std::string text(int column) const;
		std::int64_t integer(int column) const;

	private:
		Database& database;
		sqlite3_stmt* statement = nullptr;
	};

	/** Rolls back unless committed, so an exception leaves the database as it was. */
	class Transaction
	{
	public:
		explicit Transaction(Database& database);
		~Transaction();
		Transaction(const Transaction&) = delete;
		Transaction& operator=(const Transaction&) = delete;

		void commit();

	private:
		Database& database;
		bool done = false;
	};
}

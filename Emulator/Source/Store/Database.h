// A thin RAII layer over the SQLite C API: one connection, prepared statements, transactions.
#pragma once

#include <cstdint>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

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

		/** ":memory:" and the other spellings SQLite keeps in memory rather than in a file. */
		static bool isInMemory(std::string_view path);

		/** Runs one or more statements that take no parameters. */
		void execute(std::string_view sql);

		sqlite3* handle() const { return db; }

	private:
		friend class Statement;

		using StatementPool = std::vector<sqlite3_stmt*>;

		struct TextHash
		{
			using is_transparent = void;
			std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
		};

		/** A prepared statement for the text, one kept from an earlier use or a new one, and the
		    pool to give it back to. */
		std::pair<sqlite3_stmt*, StatementPool*> acquire(std::string_view sql);
		/** Keeps the statement, reset and unbound, for the next use of the same text. */
		void release(StatementPool& pool, sqlite3_stmt* statement);

		sqlite3* db = nullptr;
		// Compiling SQL costs more than running the small statements the platform uses, so each text
		// is compiled once; a text in use twice at a time gets a second statement.
		std::mutex poolMutex;
		std::unordered_map<std::string, StatementPool, TextHash, std::equal_to<>> idleStatements;
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
		friend class Transaction;

		Database& database;
		sqlite3_stmt* statement = nullptr;
		Database::StatementPool* pool = nullptr;
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

// Fixed-size heterogeneous tuples. The two-element tuple is the map pair, with members Key and Value.
#pragma once

#include "HAL/Platform.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <cstddef>
#include <tuple>
#include <type_traits>

template <typename... Types>
struct TTuple
{
	TTuple() = default;

	template <typename... ArgTypes>
		requires (sizeof...(ArgTypes) == sizeof...(Types) && sizeof...(Types) > 0)
	explicit TTuple(ArgTypes&&... Args)
		: Storage(Forward<ArgTypes>(Args)...)
	{
	}

	template <uint32 Index>
	decltype(auto) Get() &
	{
		return std::get<Index>(Storage);
	}

	template <uint32 Index>
	decltype(auto) Get() const&
	{
		return std::get<Index>(Storage);
	}

	template <uint32 Index>
	decltype(auto) Get() &&
	{
		return std::get<Index>(MoveTemp(Storage));
	}

	// Calls Func with the elements as arguments.
	template <typename FuncType>
	decltype(auto) ApplyAfter(FuncType&& Func) const
	{
		return std::apply(Forward<FuncType>(Func), Storage);
	}

	friend bool operator==(const TTuple& Lhs, const TTuple& Rhs)
	{
		return Lhs.Storage == Rhs.Storage;
	}

	friend bool operator!=(const TTuple& Lhs, const TTuple& Rhs)
	{
		return !(Lhs == Rhs);
	}

	friend bool operator<(const TTuple& Lhs, const TTuple& Rhs)
	{
		return Lhs.Storage < Rhs.Storage;
	}

	friend uint32 GetTypeHash(const TTuple& Tuple)
	{
		return std::apply([](const auto&... Elements)
		{
			uint32 Hash = 0;
			((Hash = HashCombine(Hash, GetTypeHash(Elements))), ...);
			return Hash;
		}, Tuple.Storage);
	}

private:
	std::tuple<Types...> Storage;
};

template <typename KeyType, typename ValueType>
struct TTuple<KeyType, ValueType>
{
	// Elements are value-initialised: a default pair of integers is zero.
	TTuple()
		: Key()
		, Value()
	{
	}

	template <typename KeyArgType, typename ValueArgType>
	TTuple(KeyArgType&& InKey, ValueArgType&& InValue)
		: Key(Forward<KeyArgType>(InKey))
		, Value(Forward<ValueArgType>(InValue))
	{
	}

	template <uint32 Index>
	auto& Get() &
	{
		static_assert(Index < 2, "Invalid tuple index");
		if constexpr (Index == 0)
		{
			return Key;
		}
		else
		{
			return Value;
		}
	}

	template <uint32 Index>
	const auto& Get() const&
	{
		return const_cast<TTuple*>(this)->template Get<Index>();
	}

	template <uint32 Index>
	auto&& Get() &&
	{
		return MoveTemp(this->template Get<Index>());
	}

	template <typename FuncType>
	decltype(auto) ApplyAfter(FuncType&& Func) const
	{
		return Forward<FuncType>(Func)(Key, Value);
	}

	friend bool operator==(const TTuple& Lhs, const TTuple& Rhs)
	{
		return Lhs.Key == Rhs.Key && Lhs.Value == Rhs.Value;
	}

	friend bool operator!=(const TTuple& Lhs, const TTuple& Rhs)
	{
		return !(Lhs == Rhs);
	}

	friend bool operator<(const TTuple& Lhs, const TTuple& Rhs)
	{
		return Lhs.Key < Rhs.Key || (!(Rhs.Key < Lhs.Key) && Lhs.Value < Rhs.Value);
	}

	friend uint32 GetTypeHash(const TTuple& Tuple)
	{
		return HashCombine(GetTypeHash(Tuple.Key), GetTypeHash(Tuple.Value));
	}

	KeyType Key;
	ValueType Value;
};

template <typename KeyType, typename ValueType>
using TPair = TTuple<KeyType, ValueType>;

template <typename... Types>
FORCEINLINE TTuple<std::decay_t<Types>...> MakeTuple(Types&&... Args)
{
	return TTuple<std::decay_t<Types>...>(Forward<Types>(Args)...);
}

// Structured bindings: auto& [Key, Value] = Pair;
template <std::size_t Index, typename... Types>
decltype(auto) get(TTuple<Types...>& Tuple)
{
	return Tuple.template Get<Index>();
}

template <std::size_t Index, typename... Types>
decltype(auto) get(const TTuple<Types...>& Tuple)
{
	return Tuple.template Get<Index>();
}

template <std::size_t Index, typename... Types>
decltype(auto) get(TTuple<Types...>&& Tuple)
{
	return MoveTemp(Tuple).template Get<Index>();
}

template <typename... Types>
struct std::tuple_size<TTuple<Types...>> : std::integral_constant<std::size_t, sizeof...(Types)>
{
};

template <std::size_t Index, typename... Types>
struct std::tuple_element<Index, TTuple<Types...>>
{
	using type = std::tuple_element_t<Index, std::tuple<Types...>>;
};

// Type-erased callables: TFunction (copyable), TUniqueFunction (move-only) and TFunctionRef
// (non-owning, always bound). Calling an unbound TFunction or TUniqueFunction is a fatal check.
#pragma once

#include "HAL/Platform.h"
#include "Misc/AssertionMacros.h"
#include "Templates/UnrealTemplate.h"

#include <cstddef>
#include <functional>
#include <type_traits>

template <typename FuncType>
class TFunction;

template <typename FuncType>
class TUniqueFunction;

template <typename FuncType>
class TFunctionRef;

namespace UE::Core::Private::Function
{
	template <typename T>
	inline constexpr bool TIsFunctionWrapper = false;

	template <typename F>
	inline constexpr bool TIsFunctionWrapper<TFunction<F>> = true;

	template <typename F>
	inline constexpr bool TIsFunctionWrapper<TUniqueFunction<F>> = true;

	template <typename F>
	inline constexpr bool TIsFunctionWrapper<TFunctionRef<F>> = true;

	template <typename FunctorType, typename Ret, typename... ParamTypes>
	inline constexpr bool TIsBindable = !TIsFunctionWrapper<std::decay_t<FunctorType>>
		&& std::is_invocable_r_v<Ret, std::decay_t<FunctorType>&, ParamTypes...>;

	// A null function pointer binds to nothing, so the wrapper stays unset.
	template <typename FunctorType>
	bool IsNullFunctor(const FunctorType& Functor)
	{
		if constexpr (std::is_pointer_v<FunctorType> || std::is_member_pointer_v<FunctorType>)
		{
			return Functor == nullptr;
		}
		else
		{
			return false;
		}
	}

	template <typename Ret, typename... ParamTypes>
	struct ICallable
	{
		virtual ~ICallable() = default;
		virtual Ret Call(ParamTypes&&... Params) = 0;
		virtual ICallable* Clone() const = 0;
	};

	template <typename FunctorType, typename Ret, typename... ParamTypes>
	struct TCallable final : ICallable<Ret, ParamTypes...>
	{
		template <typename ArgType>
		explicit TCallable(ArgType&& InFunctor)
			: Functor(Forward<ArgType>(InFunctor))
		{
		}

		Ret Call(ParamTypes&&... Params) override
		{
			if constexpr (std::is_void_v<Ret>)
			{
				std::invoke(Functor, Forward<ParamTypes>(Params)...);
			}
			else
			{
				return std::invoke(Functor, Forward<ParamTypes>(Params)...);
			}
		}

		ICallable<Ret, ParamTypes...>* Clone() const override
		{
			if constexpr (std::is_copy_constructible_v<FunctorType>)
			{
				return new TCallable(Functor);
			}
			else
			{
				checkNoEntry();
			}
		}

		FunctorType Functor;
	};

	// Owns one heap-allocated callable; TFunction and TUniqueFunction differ only in copying.
	template <typename Ret, typename... ParamTypes>
	class TFunctionStorage
	{
	public:
		using CallableType = ICallable<Ret, ParamTypes...>;

		TFunctionStorage() = default;

		explicit TFunctionStorage(CallableType* InCallable)
			: Callable(InCallable)
		{
		}

		TFunctionStorage(TFunctionStorage&& Other)
			: Callable(Other.Callable)
		{
			Other.Callable = nullptr;
		}

		TFunctionStorage& operator=(TFunctionStorage&& Other)
		{
			if (this != &Other)
			{
				delete Callable;
				Callable = Other.Callable;
				Other.Callable = nullptr;
			}
			return *this;
		}

		TFunctionStorage(const TFunctionStorage&) = delete;
		TFunctionStorage& operator=(const TFunctionStorage&) = delete;

		~TFunctionStorage()
		{
			delete Callable;
		}

		TFunctionStorage Clone() const
		{
			return TFunctionStorage(Callable ? Callable->Clone() : nullptr);
		}

		template <typename FunctorType>
		static TFunctionStorage Bind(FunctorType&& Functor)
		{
			if (IsNullFunctor(Functor))
			{
				return TFunctionStorage();
			}
			return TFunctionStorage(new TCallable<std::decay_t<FunctorType>, Ret, ParamTypes...>(Forward<FunctorType>(Functor)));
		}

		bool IsSet() const
		{
			return Callable != nullptr;
		}

		Ret Call(ParamTypes&&... Params) const
		{
			checkf(Callable != nullptr, "Attempting to call an unbound TFunction!");
			return Callable->Call(Forward<ParamTypes>(Params)...);
		}

	private:
		CallableType* Callable = nullptr;
	};
}

template <typename Ret, typename... ParamTypes>
class TFunction<Ret(ParamTypes...)>
{
	using FStorage = UE::Core::Private::Function::TFunctionStorage<Ret, ParamTypes...>;

	template <typename FuncType>
	friend class TUniqueFunction;

public:
	TFunction(std::nullptr_t = nullptr)
	{
	}

	template <typename FunctorType>
		requires UE::Core::Private::Function::TIsBindable<FunctorType, Ret, ParamTypes...>
	TFunction(FunctorType&& InFunc)
		: Storage(FStorage::Bind(Forward<FunctorType>(InFunc)))
	{
		static_assert(std::is_copy_constructible_v<std::decay_t<FunctorType>>,
			"TFunction cannot be bound to a move-only callable; use TUniqueFunction");
	}

	TFunction(const TFunction& Other)
		: Storage(Other.Storage.Clone())
	{
	}

	TFunction(TFunction&&) = default;

	TFunction& operator=(const TFunction& Other)
	{
		if (this != &Other)
		{
			Storage = Other.Storage.Clone();
		}
		return *this;
	}

	TFunction& operator=(TFunction&&) = default;

	TFunction& operator=(std::nullptr_t)
	{
		Storage = FStorage();
		return *this;
	}

	FORCEINLINE Ret operator()(ParamTypes... Params) const
	{
		return Storage.Call(Forward<ParamTypes>(Params)...);
	}

	FORCEINLINE bool IsSet() const
	{
		return Storage.IsSet();
	}

	FORCEINLINE explicit operator bool() const
	{
		return Storage.IsSet();
	}

	FORCEINLINE friend bool operator==(const TFunction& Func, std::nullptr_t)
	{
		return !Func.IsSet();
	}

private:
	FStorage Storage;
};

template <typename Ret, typename... ParamTypes>
class TUniqueFunction<Ret(ParamTypes...)>
{
	using FStorage = UE::Core::Private::Function::TFunctionStorage<Ret, ParamTypes...>;

public:
	TUniqueFunction(std::nullptr_t = nullptr)
	{
	}

	template <typename FunctorType>
		requires UE::Core::Private::Function::TIsBindable<FunctorType, Ret, ParamTypes...>
	TUniqueFunction(FunctorType&& InFunc)
		: Storage(FStorage::Bind(Forward<FunctorType>(InFunc)))
	{
	}

	TUniqueFunction(TFunction<Ret(ParamTypes...)>&& Other)
		: Storage(MoveTemp(Other.Storage))
	{
	}

	TUniqueFunction(const TFunction<Ret(ParamTypes...)>& Other)
		: Storage(Other.Storage.Clone())
	{
	}

	TUniqueFunction(TUniqueFunction&&) = default;
	TUniqueFunction& operator=(TUniqueFunction&&) = default;
	TUniqueFunction(const TUniqueFunction&) = delete;
	TUniqueFunction& operator=(const TUniqueFunction&) = delete;

	TUniqueFunction& operator=(std::nullptr_t)
	{
		Storage = FStorage();
		return *this;
	}

	FORCEINLINE Ret operator()(ParamTypes... Params) const
	{
		return Storage.Call(Forward<ParamTypes>(Params)...);
	}

	FORCEINLINE bool IsSet() const
	{
		return Storage.IsSet();
	}

	FORCEINLINE explicit operator bool() const
	{
		return Storage.IsSet();
	}

	FORCEINLINE friend bool operator==(const TUniqueFunction& Func, std::nullptr_t)
	{
		return !Func.IsSet();
	}

private:
	FStorage Storage;
};

// Refers to a callable owned elsewhere; only for parameters that are called before the call returns.
template <typename Ret, typename... ParamTypes>
class TFunctionRef<Ret(ParamTypes...)>
{
public:
	template <typename FunctorType>
		requires UE::Core::Private::Function::TIsBindable<FunctorType, Ret, ParamTypes...>
	TFunctionRef(FunctorType&& InFunc)
		: Object(const_cast<void*>(static_cast<const void*>(std::addressof(InFunc))))
		, Invoker(&Invoke<std::remove_reference_t<FunctorType>>)
	{
		checkf(!UE::Core::Private::Function::IsNullFunctor(InFunc), "Cannot bind a null function pointer to a TFunctionRef");
	}

	TFunctionRef(const TFunctionRef&) = default;
	TFunctionRef& operator=(const TFunctionRef&) = delete;

	FORCEINLINE Ret operator()(ParamTypes... Params) const
	{
		return Invoker(Object, Forward<ParamTypes>(Params)...);
	}

private:
	template <typename FunctorType>
	static Ret Invoke(void* Obj, ParamTypes&&... Params)
	{
		if constexpr (std::is_void_v<Ret>)
		{
			std::invoke(*static_cast<FunctorType*>(Obj), Forward<ParamTypes>(Params)...);
		}
		else
		{
			return std::invoke(*static_cast<FunctorType*>(Obj), Forward<ParamTypes>(Params)...);
		}
	}

	void* Object;
	Ret (*Invoker)(void*, ParamTypes&&...);
};

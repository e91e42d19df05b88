#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"

#include <condition_variable>
#include <mutex>

/**
 * Work handed to the game thread: any thread adds, the HTTP manager's tick takes everything.
 * Shared with the transports, so that a result arriving after the manager has gone lands nowhere.
 */
class FHttpGameThreadQueue
{
public:
	void Add(TUniqueFunction<void()>&& Task);

	TArray<TUniqueFunction<void()>> TakeAll();

	/** Waits until some task is queued or the time runs out; true when one is. */
	bool WaitForTasks(double TimeoutSeconds);

private:
	std::mutex Mutex;
	std::condition_variable TaskAdded;
	TArray<TUniqueFunction<void()>> Tasks;
};

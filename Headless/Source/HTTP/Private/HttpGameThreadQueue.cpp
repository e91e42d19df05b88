#include "HttpGameThreadQueue.h"

#include <chrono>

void FHttpGameThreadQueue::Add(TUniqueFunction<void()>&& Task)
{
	{
		std::lock_guard<std::mutex> Lock(Mutex);
		Tasks.Add(MoveTemp(Task));
	}
	TaskAdded.notify_all();
}

TArray<TUniqueFunction<void()>> FHttpGameThreadQueue::TakeAll()
{
	std::lock_guard<std::mutex> Lock(Mutex);
	TArray<TUniqueFunction<void()>> Taken = MoveTemp(Tasks);
	Tasks.Reset();
	return Taken;
}

bool FHttpGameThreadQueue::WaitForTasks(double TimeoutSeconds)
{
	std::unique_lock<std::mutex> Lock(Mutex);
	return TaskAdded.wait_for(Lock, std::chrono::duration<double>(TimeoutSeconds), [this]()
	{
		return Tasks.Num() > 0;
	});
}

// The platform client's part in the module's life: requests outlive the calls that start them, so
// the module tells the client when it starts and when it shuts down.
#pragma once

namespace UE::Quorvel::Private
{
	/** Requests may be sent and retried again. */
	void StartClient();

	/**
	 * Takes back every retry still waiting, unsent and without its completion, and lets attempts still
	 * in flight end without one: after shutdown nobody is left to act on an outcome.
	 */
	void ShutDownClient();
}

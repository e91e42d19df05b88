#include "QuorvelLog.h"

DEFINE_LOG_CATEGORY(LogQuorvel);
DEFINE_LOG_CATEGORY(LogQuorvelClient);

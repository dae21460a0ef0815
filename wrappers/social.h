// Friends, ranks, sharing, achievements and quests.
#pragma once

#include "wrappers/row.h"

namespace luavelora {

Outcome DisplayQuests(lua_State* L);

inline constexpr luaL_Reg kSocialWrappers[] = {
    VELORA_WRAPPER(zvQueryFriendList),  VELORA_WRAPPER(zvQueryAvailablesInvitees),
    VELORA_WRAPPER(zvQueryMyAccount),   VELORA_WRAPPER(zvQueryFriendListInGame),
    VELORA_WRAPPER(zvQueryInviterList), VELORA_WRAPPER(zvIsDarenUpdated),
    VELORA_WRAPPER(zvMoreGame),         VELORA_WRAPPER(zvDisplayAchievement),
    VELORA_WRAPPER(zvApplyFriend),      VELORA_WRAPPER(zvDisplayLeaderboard),
    VELORA_WRAPPER(zvInviteFriendList), VELORA_WRAPPER(zvUpdateAchievement),
    VELORA_WRAPPER(zvUpdateEvent),      VELORA_WRAPPER(zvUpdateRank),
    VELORA_WRAPPER(zvDeleteInviters),   {"zvDisplayQuests", Entry<DisplayQuests>},
    VELORA_WRAPPER(zvQueryRank),        VELORA_WRAPPER(zvShare),
    VELORA_WRAPPER(zvCheckArgs),        VELORA_WRAPPER(getLastShareMessage),
};

}  // namespace luavelora

// Friends, invitations, ranks, achievements, quests and sharing.
#include <algorithm>
#include <span>

#include "offline/calls.h"
#include "offline/event_queue.h"
#include "offline/state.h"
#include "platform/account_info.h"
#include "platform/operations.h"
#include "platform/query_rank_info.h"
#include "platform/share_info.h"

namespace tarn::velora {

using namespace offline;

namespace {

using Accounts = std::vector<std::shared_ptr<AccountInfo>>;

enum class Relation { kSelf, kFriend, kInvitee, kInviter };

// The people that the runtime knows.
struct Person {
  const char* accountId;
  const char* nickname;
  Relation relation;
  const char* relationType;
  bool inGame;
};
constexpr Person kPeople[] = {
    {"player", "Player", Relation::kSelf, "self", true},
    {"friend.1", "First Friend", Relation::kFriend, "friend", true},
    {"friend.2", "Second Friend", Relation::kFriend, "friend", false},
    {"invitee.1", "First Invitee", Relation::kInvitee, "invitee", false},
    {"inviter.1", "First Inviter", Relation::kInviter, "inviter", true},
    {"inviter.2", "Second Inviter", Relation::kInviter, "inviter", false},
};

constexpr std::int32_t kDefaultRanks = 3;
constexpr std::int32_t kMaxRanks = 100;

std::shared_ptr<AccountInfo> NewAccount(const std::string& accountId, const std::string& nickname) {
  auto account = MakeAccount({});
  account->set_accountId(accountId);
  account->set_nickname(nickname);
  account->set_idType("offline");
  return account;
}

std::shared_ptr<AccountInfo> AccountOf(const Person& person) {
  const Quiet quiet;
  auto account = NewAccount(person.accountId, person.nickname);
  account->set_relationType(person.relationType);
  account->set_inGame(person.inGame);
  return account;
}

// Nobody where the operation's set answer is false.
template <class Chosen>
Accounts AccountsOf(const char* operation, Chosen chosen) {
  Accounts accounts;
  if (!GiveFlag(operation, true)) return accounts;
  for (const Person& person : kPeople) {
    if (chosen(person)) accounts.push_back(AccountOf(person));
  }
  return accounts;
}

auto HasRelation(Relation relation) {
  return [relation](const Person& person) { return person.relation == relation; };
}

// The best first: as many as the query asks for.
Accounts Ranking(QueryRankInfo& query) {
  const Quiet quiet;
  std::int32_t count = query.get_count();
  count = count <= 0 ? kDefaultRanks : std::min(count, kMaxRanks);
  Accounts accounts;
  for (std::int32_t rank = 1; rank <= count; ++rank) {
    const std::string number = std::to_string(rank);
    const auto account = NewAccount("rank." + number, "Rank " + number);
    account->set_rank(rank);
    account->set_rankScore(1000.0 - 10 * rank);
    accounts.push_back(account);
  }
  return accounts;
}

std::string MessageOf(ShareInfo& share) {
  const Quiet quiet;
  std::string message;
  share.get_text(message);
  if (message.empty()) share.get_title(message);
  return message;
}

}  // namespace

void zvQueryFriendList() {
  Call(__func__);
  Reply({MakeEvent<events::QueryFriendListFinished>(AccountsOf(__func__, HasRelation(Relation::kFriend)))});
}

void zvQueryAvailablesInvitees() {
  Call(__func__);
  Reply({MakeEvent<events::QueryAvailablesInviteesFinished>(AccountsOf(__func__, HasRelation(Relation::kInvitee)))});
}

void zvQueryMyAccount() {
  Call(__func__);
  Reply({MakeEvent<events::QueryMyAccountFinished>(GiveFlag(__func__, true) ? AccountOf(kPeople[0]) : nullptr)});
}

void zvQueryFriendListInGame() {
  Call(__func__);
  const auto inGame = [](const Person& person) { return person.relation == Relation::kFriend && person.inGame; };
  Reply({MakeEvent<events::QueryFriendListInGameFinished>(AccountsOf(__func__, inGame))});
}

void zvQueryInviterList() {
  Call(__func__);
  const std::set<std::string> deleted = LockedState()->deletedInviters;
  const auto remains = [&](const Person& person) {
    return person.relation == Relation::kInviter && !deleted.contains(person.accountId);
  };
  Reply({MakeEvent<events::QueryInviterListFinished>(AccountsOf(__func__, remains))});
}

void zvDeleteInviters(const StringList& accountIds) {
  Call(__func__, accountIds);
  LockedState()->deletedInviters.insert(accountIds.begin(), accountIds.end());
}

void zvIsDarenUpdated() {
  Call(__func__);
  Reply({MakeEvent<events::QueryIsDarenUpdated>(GiveFlag(__func__, true))});
}

void zvApplyFriend(const std::string& accountId) {
  Call(__func__, accountId);
  Reply({MakeEvent<events::QueryApplyFriendFinished>(GiveFlag(__func__, true))});
}

// The event names both texts back; nobody where the answer is false.
void zvInviteFriendList(const std::string& first, const std::string& second) {
  Call(__func__, first, second);
  StringList invited;
  if (GiveFlag(__func__, true)) invited = {first, second};
  Reply({MakeEvent<events::QueryInviteFriendListFinished>(std::move(invited))});
}

void zvUpdateAchievement(const std::string& name, std::int32_t progress) {
  Call(__func__, name, progress);
  Reply({MakeEvent<events::QueryRankUpdateAchievement>(GiveFlag(__func__, true))});
}

void zvUpdateRank(const std::string& name, double score) {
  Call(__func__, name, score);
  Reply({MakeEvent<events::QueryRankUpdateFinished>(GiveFlag(__func__, true))});
}

void zvQueryRank(const std::shared_ptr<QueryRankInfo>& query) {
  Call(__func__, query);
  if (query == nullptr) return;
  Reply({MakeEvent<events::QueryRankFinished>(GiveFlag(__func__, true) ? Ranking(*query) : Accounts())});
}

// Every quest shown counts as completed; the event names its number.
void zvDisplayQuests(const std::int32_t* quests, std::size_t count) {
  const std::span shown(quests, quests == nullptr ? 0 : count);
  Call(__func__, shown, count);
  std::vector<std::shared_ptr<Event>> completed;
  for (const std::int32_t quest : shown) completed.push_back(MakeEvent<events::QuestCompleted>(std::to_string(quest)));
  if (!completed.empty() && GiveFlag(__func__, true)) Reply(std::move(completed));
}

void zvShare(const std::shared_ptr<ShareInfo>& share) {
  Call(__func__, share);
  if (share == nullptr) return;
  const bool shared = GiveFlag(__func__, true);
  Reply({MakeEvent<events::ShareFinished>(shared)}, [shared, message = MessageOf(*share)] {
    if (shared) LockedState()->lastShareMessage = message;
  });
}

bool zvCheckArgs(const std::shared_ptr<ShareInfo>& share) {
  Call(__func__, share);
  return GiveFlag(__func__, share != nullptr);
}

// The text, else the title, of the last request that was shared.
bool getLastShareMessage(std::string& out) {
  Call(__func__);
  const auto message = LockedState()->lastShareMessage;
  return GiveText(__func__, message, out);
}

void zvMoreGame() { Call(__func__); }
void zvDisplayAchievement() { Call(__func__); }
void zvDisplayLeaderboard(const std::string& name) { Call(__func__, name); }
void zvUpdateEvent(const std::string& name, std::int32_t count) { Call(__func__, name, count); }

}  // namespace tarn::velora

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

// A built-in account.
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
  const ControlPause pause;
  auto account = NewAccount(person.accountId, person.nickname);
  account->set_relationType(person.relationType);
  account->set_inGame(person.inGame);
  return account;
}

// Returns the accounts that `predicate` accepts, or none if the operation's canned result is false.
template <class Predicate>
Accounts AccountsOf(const Operation& call, Predicate predicate) {
  Accounts accounts;
  if (!call.Flag(true)) return accounts;
  for (const Person& person : kPeople) {
    if (predicate(person)) accounts.push_back(AccountOf(person));
  }
  return accounts;
}

auto HasRelation(Relation relation) {
  return [relation](const Person& person) { return person.relation == relation; };
}

// Returns as many accounts as the query requests, best first.
Accounts Ranking(QueryRankInfo& query) {
  const ControlPause pause;
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
  const ControlPause pause;
  std::string message;
  share.get_text(message);
  if (message.empty()) share.get_title(message);
  return message;
}

}  // namespace

void zvQueryFriendList() {
  Reply({MakeEvent<events::QueryFriendListFinished>(AccountsOf(Call(__func__), HasRelation(Relation::kFriend)))});
}

void zvQueryAvailablesInvitees() {
  Reply({MakeEvent<events::QueryAvailablesInviteesFinished>(
      AccountsOf(Call(__func__), HasRelation(Relation::kInvitee)))});
}

void zvQueryMyAccount() {
  Reply({MakeEvent<events::QueryMyAccountFinished>(Call(__func__).Flag(true) ? AccountOf(kPeople[0]) : nullptr)});
}

void zvQueryFriendListInGame() {
  const auto inGame = [](const Person& person) { return person.relation == Relation::kFriend && person.inGame; };
  Reply({MakeEvent<events::QueryFriendListInGameFinished>(AccountsOf(Call(__func__), inGame))});
}

void zvQueryInviterList() {
  const Operation call = Call(__func__);
  const auto remains = [deleted = Get(&State::deletedInviters)](const Person& person) {
    return person.relation == Relation::kInviter && !deleted.contains(person.accountId);
  };
  Reply({MakeEvent<events::QueryInviterListFinished>(AccountsOf(call, remains))});
}

void zvDeleteInviters(const StringList& accountIds) {
  Call(__func__, accountIds);
  LockedState()->deletedInviters.insert(accountIds.begin(), accountIds.end());
}

void zvIsDarenUpdated() { Reply({MakeEvent<events::QueryIsDarenUpdated>(Call(__func__).Flag(true))}); }

void zvApplyFriend(const std::string& accountId) {
  Reply({MakeEvent<events::QueryApplyFriendFinished>(Call(__func__, accountId).Flag(true))});
}

// The event's list has both strings, or is empty if the canned result is false.
void zvInviteFriendList(const std::string& first, const std::string& second) {
  const bool done = Call(__func__, first, second).Flag(true);
  Reply({MakeEvent<events::QueryInviteFriendListFinished>(done ? StringList{first, second} : StringList())});
}

void zvUpdateAchievement(const std::string& name, std::int32_t progress) {
  Reply({MakeEvent<events::QueryRankUpdateAchievement>(Call(__func__, name, progress).Flag(true))});
}

void zvUpdateRank(const std::string& name, double score) {
  Reply({MakeEvent<events::QueryRankUpdateFinished>(Call(__func__, name, score).Flag(true))});
}

void zvQueryRank(const std::shared_ptr<QueryRankInfo>& query) {
  const bool done = Call(__func__, query).Flag(true);
  if (query == nullptr) return;
  Reply({MakeEvent<events::QueryRankFinished>(done ? Ranking(*query) : Accounts())});
}

// Every quest is completed at once, with an event that has its number.
void zvDisplayQuests(const std::int32_t* quests, std::size_t count) {
  const std::span shown(quests, quests == nullptr ? 0 : count);
  const bool done = Call(__func__, shown, count).Flag(true);
  std::vector<std::shared_ptr<Event>> completed;
  for (const std::int32_t quest : shown) completed.push_back(MakeEvent<events::QuestCompleted>(std::to_string(quest)));
  if (!completed.empty() && done) Reply(std::move(completed));
}

void zvShare(const std::shared_ptr<ShareInfo>& share) {
  const bool shared = Call(__func__, share).Flag(true);
  if (share == nullptr) return;
  Reply({MakeEvent<events::ShareFinished>(shared)}, [shared, message = MessageOf(*share)] {
    if (shared) LockedState()->lastShareMessage = message;
  });
}

bool zvCheckArgs(const std::shared_ptr<ShareInfo>& share) { return Call(__func__, share).Flag(share != nullptr); }

// Returns the text of the last shared request, or its title if it has no text.
bool getLastShareMessage(std::string& out) { return Call(__func__).Text(Get(&State::lastShareMessage), out); }

void zvMoreGame() { Call(__func__); }
void zvDisplayAchievement() { Call(__func__); }
void zvDisplayLeaderboard(const std::string& name) { Call(__func__, name); }
void zvUpdateEvent(const std::string& name, std::int32_t count) { Call(__func__, name, count); }

}  // namespace tarn::velora

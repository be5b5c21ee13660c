#include "scenario/letters.h"

#include <array>

#include "core/missions.h"

namespace scenario {

namespace {

// The letters as the list of missions shows them; the last one closes the campaign.
constexpr std::array<std::string_view, core::kMissions + 1> kLetters{
    "    I,your mighty king,heard that you are very talented in planning your village's food "
    "production.If you are such a gifted person I may use of you;I give you a chance of "
    "having the honor to serve your king.Our royal army grows and gets stronger each day; we "
    "need food for our soldiers,I will give you 400 golds from royal treasury and charge you "
    "with the foundation of a new farmer village in the fertile lands of our kingdom.Do not "
    "fail.",

    "    Not bad,you founded a pretty village.Do you remember the gold I gave you?Now it is "
    "time to pay back;I will take 2500 golds from your village soon,so plan your economy "
    "quickly.Additionally, I frequently need soldiers and the best soldiers are religious "
    "ones, so keep the religion popular in your village.",

    "    Well,if we think you are not noble,you may be considered as succesful,I will charge "
    "you with more important missions;but your village should be in good conditions before "
    "you leave.Go and be sure it has a stable economy.",

    "    Since you proved yourself ,I will give you an important duty,my advisors suggest "
    "that good places in the shores of our kingdom may be  good harbors for trade ships,so I "
    "made an harbor build in such a location,now you will build a village for merchants "
    "which will provide our kingdom high taxes,you will receive regular food supply so build "
    "a town quickly",

    "    Well done,now concentrate on attracting wealthy people to your village and collect "
    "as much tax as possible,do not forget,this is not a farmer city,you must provide "
    "various public services to your people if you want to attract merchants and nobles to "
    "your city",

    "    You are surprising me with your progress,now grow your city more and be sure it has "
    "a stable economy before you finish with there.By the way,you will not get food supply "
    "anymore,produce your own food. ",

    "    You are indeed very talented,now you will be charged with a somewhat more "
    "challenging task,found a pretty city for the noble people of our kingdom,you will be "
    "provided with food and gold regularly so be quick.",

    "    I am planning a final challenge for you,at the end of which you will have your "
    "reward for spending your life in the service of your king,but this will be a "
    "surprise,now focus on your city,this is where I plan to live in the future,so be "
    "careful and make it more prosperous",

    "    Now it makes about 14 years since you started to serve me,I must admit that you are "
    "very intelligent -even more than most of the nobles around me- .I will charge you with "
    "a last duty,in which you will have to use your abilities very effectively to "
    "overcome.You will build a city in one of our eastern castles.The outside of castle is "
    "quite unsafe so build your city accordingly.",

    "    Very good,now since you overcome every mission I charged to you,I can speak without "
    "doubt.I am not as healthy as when I was once.I am too tired,Since I do not have a son,I "
    "will give my daughter to you;then you will be noble,noble enough to be the new "
    "king,then I can retire.Yes my son,these are my plans,but if you achieve one last "
    "mission...",

    "    After completed every mission you are assigned,you marry with the princess.The king "
    "retires and leaves the kingdom to you.Now you are the ruler and everyone is sure that "
    "you will lead the kingdom to the prosperity...As usual.",
};

// Two letters read a little differently when the menu comes back from a game.
constexpr std::string_view kHomecomingLetter2 =
    "    Not bad,you build a pretty village.Do you remember the golds I gave you?Now it is "
    "time to pay back;I will take 2500 golds from your village soon,so plan your economy "
    "accordingly.Additionally, I frequently need soldiers and the best soldiers are "
    "religious ones, so keep the religion popular in your village.";
constexpr std::string_view kHomecomingLetter3 =
    "    Well,considering you are not noble,you are quite succesful,I will charge you with "
    "more important missions;but your village should be in good conditions before you "
    "leave.Go and be sure it has a stable economy.";

}  // namespace

std::string_view letter(int number, LetterSet set) {
  if (set == LetterSet::homecoming && number == 2) return kHomecomingLetter2;
  if (set == LetterSet::homecoming && number == 3) return kHomecomingLetter3;
  return kLetters[number - 1];
}

std::string_view briefingGoal(int number, LetterSet set) {
  if (number == core::kCampaignWon) return " You completed the campaign";
  // The homecoming's second letter has one blank more before its goal.
  if (set == LetterSet::homecoming && number == 2) {
    return "  1000 people, 2500 golds and religion rating > 75% in two years";
  }
  return core::mission(number).goalText;
}

}  // namespace scenario

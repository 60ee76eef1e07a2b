// The quips of Escape-q: ten lines to smile at, a row of dots, and snippets of the language to
// copy, paste and evaluate, true statements and false ones alike.
#include "editor/quips.h"

#include <cstdlib>

#include "editor/paint.h"
#include "editor/prompts.h"
#include "editor/state.h"
#include "editor/status.h"

namespace tarn {

// The snippets stand from short to long, and within a length small letters come before digits and
// capitals. rand starts from the same seed in every run, so that the quips come in a fixed order.
const char* const quips[] = {
    "Undo is cheaper than regret.",
    "A watched cursor blinks at its own pace.",
    "It is not a bug. It is a green underscore that grew up.",
    "Ninety percent of editing is deciding not to.",
    "Save early, save often, and save the receipt.",
    "Roses are red,\nspaces are green,\nthis line is longer\nthan any you've seen.",
    "The shortest distance between two points is a search that wraps around the end.",
    "To understand the joke about recursion, first hear the joke about recursion.",
    "Every program has at least one more byte than it needs.",
    "Lazy evaluation: why do today what nobody may ever ask for?",
    "..........................................................................",
    "(H)",
    "(K)",
    "(IH)",
    "(IK)",
    "(L0)",
    "(L9)",
    "(LK)",
    "(MN)",
    "(NO)",
    "(NZ)",
    "(0>0)",
    "(HZH)",
    "(HZK)",
    "(KHK)",
    "(KHZ)",
    "(KKH)",
    "(KKZ)",
    "(K#K)",
    "(OMN)",
    "(!KI)",
    "(!SK)",
    "([]H)",
    "(1.5K)",
    "(9.9K)",
    "(BMKH)",
    "(FHUK)",
    "(KNOW)",
    "(VHKH)",
    "(VKHK)",
    "(!!KI)",
    "(!!SK)",
    "(0+1=2)",
    "(1*1=1)",
    "(1+2=3)",
    "(9%3=1)",
    "(L []H)",
    "(SKINS)",
    "(rawsZ0)",
    "(rawsZU)",
    "(rawsZZ)",
    "(01/2=0)",
    "(1*01=1)",
    "(9*8=76)",
    "(JKZ<00)",
    "(KNICKS)",
    "(raws0 0)",
    "(L [][]H)",
    "(SKKIIIK)",
    "(cmpr9A=1)",
    "(cmprAB=1)",
    "(cmprUS=1)",
    "(rank[]=0)",
    "(rank[]=2)",
    "(rank[]=K)",
    "(00*00=00)",
    "(01*01=01)",
    "(leak1%2=3)",
    "(raws AA K)",
    "(raws0 0+0)",
    "(raws0raws)",
    "(rawsKraws)",
    "(1+2=3?H;K)",
    "(SMM BVXIK)",
    "(SMM BVXIN)",
    "(SMM DFKXI)",
    "(SMM DFNXI)",
    "(!(a)!)",
    "(raws(1+1)2)",
    "(raws(SKK)I)",
    "(1^2+3^4=56)",
    "(K&H|K&H|K!)",
    "(rank cray=1)",
    "(raws BS SBK)",
    "(001-002=003)",
    "(10*100=1000)",
    "([}]{H}&!!)",
    "(cape10@rawsZ)",
    "(lits[[q]]=91)",
    "(type3=[hint])",
    "(type3=[slot])",
    "(typeH=[void])",
    "(typeK=[bool])",
    "(([}]{3}*-)=9)",
    "(cray/3<cray/2)",
    "(raws01 cmpr01)",
    "(JK JKK<JK JHK)",
    "(MUSTHAVEABITON)",
    "(cape[[]]@rawsZ)",
    "(look[abc]0=[a])",
    "(raws raws raws)",
    "(raws(1+2=3?4;5)6",
    "(init91=cape[[q]])",
    "(init91=cape[[r]])",
    "(init92=cape[[p]])",
    "(init93=cape[[q]])",
    "(init93=cape[[r]])",
    "(type[raws]=[void])",
    "(look[abc]0=lits[a])",
    "(load[road]=road[load])",
    "(look look[a[bc]d]1 1)",
    "(cmpr(cmpr cmpr cmpr)1=0)",
    "(cray/1/2*3=cray/1/2/1/2/1/2)",
    "(less{q\\r\\cmpr q r=01}lessAB)",
    "(look cray^cray^cray 0=cray^cray)",
    "(look cray/cray/cray 0=cray/cray)",
    "(Y(f\\g\\h\\i\\i=0?g;f h g+h i-1)0 1 2=3)",
    "(Y(f\\g\\h\\i\\i=0?g;f h g+h i-1)1 1 9=55)",
    "(999999^9=999991000035999916000125999874000083999964000008999999)",
    "(9999999^8=99999920000027999994400000699999944000002799999920000000)",
    "(9999999^8=99999920000027999994400000699999944000002799999920000001)",
    "(f{Y;f\\a\\b\\c\\c a;f b a+b}g{Y;g\\n\\o\\n=0?Qo;g n-1 o}g9 f0'1=34)",
    "(f{Y;f\\a\\b\\c\\c a;f b a+b}g{Y;g\\h\\i\\i=0?Qh;g h i-1}g f0'0 9=34)",
    "(f{Y;f\\a\\b\\c\\c a;f b a+b}g{Y;g\\h\\i\\i=0?Qh;g h i-1}g f0'1 9=34)",
    "(100000000000*10000000000000000000000=1000000000000000000000000000000000)",
    "(200000000000*50000000000000000000000=1000000000000000000000000000000000)",
    "(load[load[load[load[load[load[load[load[load[load[load[!!!!!K]]]]]]]]]]])(load[!load[lo"
    "ad[!load[load[!load[load[!load[load[!load[load[H]]]]]]]]]]])(load[!load[load[load[!load["
    "load[load[!load[load[load[!load[BI]]]]]]]]]]])(200000000000*50000000000000000000000=1000"
    "0000000000000000000000000000000)",
    "(HKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHKHK)",
    "(NNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNN)",
    "(!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!K)",
    "[ssssssssssssssssssssssssssssssssssssssssssssssssssssssssssssssssssssssss]",
    "[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]]",
    ("\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n"
     "\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n"),
};
static_assert(sizeof quips / sizeof quips[0] == quipcount);

static void paintquip() { paintsheet("Quip"); }

static void enterquip() {
  repaint = paintquip;
  setstat(quips[rand() % quipcount]);
}

static constexpr Prompt quipprompt = {2, enterquip, {}, nullptr, replay};

void tarndomq() { runprompt(quipprompt); }

}  // namespace tarn

# What the benches of the language share: running one program of bench/programs in Tarn and in its
# peers, and measuring it. Sourced by the run-* scripts, which have the build folder as $1.
#
# A program NAME is NAME.tarn, and the same work for a peer in NAME.bc, NAME.py, NAME.lua or
# NAME.hs. Times are processor milliseconds of the whole process, the median of several runs; "net"
# has the time of the program `start` taken off, which does next to nothing.

programs=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)/programs
tarneval=$1/programs/tarneval
rounds=${ROUNDS:-7}
# The interpreter itself: a wrapper found first would be measured along with it.
python=$(python3 -c 'import sys; print(sys.executable)' 2>/dev/null)

# runpeer PEER NAME: the program on that peer. Fails if the peer or the program is not there.
runpeer() {
  local peer=$1 name=$programs/$2
  case $peer in
    tarn)   "$tarneval" "$name.tarn" ;;
    bc)     BC_LINE_LENGTH=0 bc -q "$name.bc" </dev/null ;;
    python) "$python" "$name.py" ;;
    lua)    lua5.4 "$name.lua" ;;
    hugs)   runhugs -98 "$name.hs" ;;
  esac
}

haspeer() {
  local extension=$1 command=$1
  case $1 in
    tarn)   command=$tarneval ;;
    python) extension=py command=$python ;;
    lua)    command=lua5.4 ;;
    hugs)   extension=hs command=runhugs ;;
  esac
  [ -f "$programs/$2.$extension" ] && command -v "${command:-none}" >/dev/null
}

# cputime PEER NAME: median processor milliseconds; "-" where there is no such peer or program.
cputime() {
  haspeer "$1" "$2" || { echo -; return; }
  local i TIMEFORMAT='%3U %3S'
  for ((i = 0; i < rounds; i++)); do
    { time runpeer "$1" "$2" >/dev/null 2>&1; } 2>&1
  done | awk '{print 1000 * ($1 + $2)}' | sort -n |
    awk '{t[NR] = $1} END {print t[int((NR + 1) / 2)]}'
}

# net TIME START: the time less the start-up, at least a tenth of a millisecond.
net() {
  awk -v t="$1" -v s="$2" 'BEGIN {if (t == "-") print t; else print (t - s > 0.1 ? t - s : 0.1)}'
}

# ratio A B: a / b with two digits; "-" where one is not known.
ratio() {
  awk -v a="$1" -v b="$2" 'BEGIN {if (a == "-" || b == "-") print "-"; else printf "%.2f\n", a / b}'
}

# sameanswer PEER NAME: Tarn and the peer print the same; white space does not count.
sameanswer() {
  [ "$(runpeer tarn "$2" 2>&1 | tr -d ' \n\\')" = "$(runpeer "$1" "$2" 2>&1 | tr -d ' \n\\')" ]
}

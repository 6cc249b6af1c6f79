#!/usr/bin/perl
# Stack report of the library's exports, from the call-graph files GCC writes
# with -fstack-usage -fcallgraph-info=su (one <object>.ci per source file).
#
# For every export it prints:
#   own      the export's own frame
#   largest  the largest single frame among the export and every
#            library-internal function it can reach (non-inlined callees)
#   depth    the deepest chain of library frames below the export's caller
#            (own frame plus the deepest path through internal callees;
#            libc calls such as memcpy count 0)
# Indirect calls are resolved conservatively: they may reach any internal
# function of the same source file that has no direct caller (that is how
# the library passes per-record decoders), and such chains are marked '*'.
#
# Usage: stack_report.pl [--budget N] [--exempt NAME]... [--check] [--sort depth|name]
#                        [--title TEXT] FILE.ci...
#   --check   exit 1 when an export's largest frame is over the budget (the
#             exempt exports only report), or when a frame on its deepest
#             chain has an unbounded dynamic size (alloca, VLA).
use strict;
use warnings;
use Getopt::Long;
use File::Find;

my $budget = 128;
my @exempt;
my $check = 0;
my $sort = 'depth';
my $title = 'libzovqmi stack usage';
GetOptions('budget=i' => \$budget, 'exempt=s' => \@exempt, 'check' => \$check,
           'sort=s' => \$sort, 'title=s' => \$title) or exit 2;
my %exempt = map { $_ => 1 } @exempt;
die "no .ci files given\n" unless @ARGV;
# Directories are searched for .ci files.
my @files;
for my $a (@ARGV) {
    if (-d $a) { find(sub { push @files, $File::Find::name if /\.ci$/ }, $a); }
    else { push @files, $a; }
}
@files = sort @files;
die "no .ci files found in @ARGV\n" unless @files;

my (%frame, %dynamic, %label, %file, %edges, %called, %indirect);
for my $ci (@files) {
    open my $fh, '<', $ci or die "$ci: $!\n";
    while (my $line = <$fh>) {
        if ($line =~ /^node: \{ title: "([^"]*)" label: "([^"]*)"/) {
            my ($t, $l) = ($1, $2);
            next unless $l =~ /\\n(\d+) bytes \(([^)]*)\)/;  # only definitions carry a size
            my ($bytes, $kind) = ($1, $2);
            $frame{$t} = $bytes;
            $dynamic{$t} = 1 if $kind eq 'dynamic';  # 'dynamic,bounded' is a bound
            ($label{$t} = $l) =~ s/\\n.*//;
            $file{$t} = $ci;
        } elsif ($line =~ /^edge: \{ sourcename: "([^"]*)" targetname: "([^"]*)"/) {
            push @{$edges{$1}}, [$2, $ci];
        }
    }
    close $fh;
}
# A call to a global function names it without the file prefix; its
# definition (in another file) carries no prefix either.
my %calls;
for my $src (sort keys %edges) {
    for my $e (@{$edges{$src}}) {
        my ($dst, $ci) = @$e;
        if ($dst eq '__indirect_call') { $indirect{$src} = $ci; next; }
        next unless exists $frame{$dst};  # libc and compiler helpers
        push @{$calls{$src}}, $dst;
        $called{$dst} = 1;
    }
}
my %byfile;
for my $f (sort keys %frame) {
    next if $f =~ /^(zovQMI|zovPrintHex$|fn(Request|Response))/ || $called{$f};
    push @{$byfile{$file{$f}}}, $f;
}
for my $src (sort keys %indirect) {
    push @{$calls{$src}}, map { "*$_" } grep { $_ ne $src } @{$byfile{$indirect{$src}} || []};
}

# Deepest chain and largest frame below each function (memoised DFS).
my (%depth, %path, %largest, %largestAt, %busy);
sub walk {
    my ($f) = @_;
    return if exists $depth{$f};
    die "recursion through $label{$f}\n" if $busy{$f};
    $busy{$f} = 1;
    my ($best, $bestPath, $big, $bigAt) = (0, [], $frame{$f}, $f);
    for my $c (@{$calls{$f} || []}) {
        (my $callee = $c) =~ s/^\*//;
        walk($callee);
        if ($depth{$callee} > $best) {
            $best = $depth{$callee};
            $bestPath = [($c =~ /^\*/ ? '*' : '') . $callee, @{$path{$callee}}];
        }
        if ($largest{$callee} > $big) { ($big, $bigAt) = ($largest{$callee}, $largestAt{$callee}); }
    }
    $depth{$f} = $frame{$f} + $best;
    $path{$f} = $bestPath;
    ($largest{$f}, $largestAt{$f}) = ($big, $bigAt);
    delete $busy{$f};
}

sub short {
    my ($f) = @_;
    my $l = $label{$f};
    my $with = $l =~ s/ \[with (.*)\]$// ? $1 : '';
    if ($l =~ /^\)/ && $f =~ /_ZN(\w+)/) {  # label without a name: take it from the symbol
        my ($rest, @parts) = ($1);
        while ($rest =~ s/^(\d+)// && length($rest) >= $1) { push @parts, substr($rest, 0, $1, ''); }
        $l = join '::', @parts;
    }
    $l =~ s/\(.*$//;                     # arguments
    $l =~ s/^.*\s//;                     # return type
    $l =~ s/\{anonymous\}:://g;
    if ($with =~ /\bF = (.*)$/) {         # a skeleton instantiated for a decoder
        (my $fn = $1) =~ s/\(.*$//;
        $fn =~ s/\{anonymous\}:://g;
        $fn =~ s/<.*$//;
        $l .= "<$fn>";
    } elsif ($with =~ /\bW = \{(.*)\}/) {  # a builder skeleton and its fields
        $l .= "<$1>";
    }
    $l =~ s/::<lambda.*$/::lambda/;
    $l = $f if $l eq '';
    return "$l($frame{$f})";
}

my @exports = grep { /^(zovQMI|zovPrintHex$|fn(RequestAdd|ResponseParse)(Flow|Filter)\w+$)/ } keys %frame;
walk($_) for @exports;
@exports = $sort eq 'name' ? sort @exports
         : sort { $depth{$b} <=> $depth{$a} || $largest{$b} <=> $largest{$a} || $a cmp $b } @exports;

my @over;
print "$title\n";
printf "%-68s %5s %7s %5s  %s\n", 'export', 'own', 'largest', 'depth', 'deepest chain below the export';
for my $e (@exports) {
    my $chain = join ' > ', map { my $s = $_; my $m = ($s =~ s/^\*//) ? '*' : ''; $m . short($s) } @{$path{$e}};
    my $flag = '';
    if ($largest{$e} > $budget || grep { $dynamic{$_} } ($e, map { s/^\*//r } @{$path{$e}})) {
        if ($exempt{$e}) { $flag = '  (exempt)'; }
        else { $flag = '  OVER'; push @over, $e; }
    }
    printf "%-68s %5d %7d %5d  %s%s\n", $e, $frame{$e}, $largest{$e}, $depth{$e}, $chain || '-', $flag;
}
my ($maxOwn) = sort { $b <=> $a } map { $frame{$_} } grep { !$exempt{$_} } @exports;
my ($maxDepth) = sort { $b <=> $a } map { $depth{$_} } grep { !$exempt{$_} } @exports;
printf "%d exports; excluding exempt ones: largest own frame %d B, largest frame reached %d B, deepest chain %d B\n",
    scalar @exports, $maxOwn, (sort { $b <=> $a } map { $largest{$_} } grep { !$exempt{$_} } @exports)[0], $maxDepth;
printf "budget: largest frame reached by an export <= %d B (exempt: %s): ", $budget, join(', ', sort @exempt) || 'none';
if (@over) {
    print "MISSED by ", scalar @over, " export(s): ", join(', ', @over), "\n";
    exit 1 if $check;
} else {
    print "met\n";
}

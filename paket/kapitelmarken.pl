#!/usr/bin/perl -CSD -p
# Gives every heading of an HTML page the mark that links within a Markdown text mean: lower case, blanks as hyphens,
# without other signs.
use utf8;
s{<h([1-6])>(.*?)</h\1>}{
    my ($stufe, $text) = ($1, $2);
    my $marke = lc $text;
    $marke =~ s/<[^>]*>|&[a-z]+;//g;
    $marke =~ s/[^\w -]//g;
    $marke =~ tr/ /-/;
    qq(<h$stufe id="$marke">$text</h$stufe>)
}ge;

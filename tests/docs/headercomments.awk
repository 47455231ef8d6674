# What a host includes says units, ranges, what happens outside them and where a value comes from:
# at least a third of the lines of each public header do, or this fails.
{ ++lines[FILENAME] }
/\/\/.*[A-Za-z]/ { ++said[FILENAME] }
END {
    for (header in lines) {
        printf("%s: %d of %d lines\n", header, said[header], lines[header])
        tooFew = tooFew || 3 * said[header] < lines[header]
    }
    exit tooFew || NR == 0
}

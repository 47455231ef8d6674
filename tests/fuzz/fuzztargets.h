#ifndef FUZZTARGETS_H
#define FUZZTARGETS_H

// What reads octets of strangers, each as a function that takes any octets and ends the program
// where a promise is broken.
// May touch: the pure parsers of upsdesk; no socket, no window.

#include <QByteArrayList>

#include <vector>

struct FuzzTarget {
    const char* name;
    void (*run)(const QByteArray& input);
    QByteArrayList corpus; // good inputs to start from
};

const std::vector<FuzzTarget>& fuzzTargets();

#endif // FUZZTARGETS_H

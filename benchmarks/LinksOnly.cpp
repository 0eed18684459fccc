// What the start of a process costs before it does anything.
int main() {
    return 0;
}

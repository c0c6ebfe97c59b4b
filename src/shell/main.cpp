#include "shell/KestrelfenApp.hpp"

int main(int argumentCount, char** arguments) {
    return kestrelfen::KestrelfenApp(argumentCount, arguments).run();
}

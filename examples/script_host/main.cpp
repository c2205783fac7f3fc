#include <iostream>

#include "host/embedding.h"
#include "robot/robot.h"

int main(int argc, char** argv) {
    jxc::RegisterAllScreens(); // once
    jxc::lzJxc control;
    control.UserPath(argc > 1 ? argv[1] : "shop.db");
    control.SQLData(0);
    control.UserName("马文涛");
    control.ZgName("马文涛");
    control.myPower("99999999");
    jxc::JsonLines lines(std::cin, std::cout); // one request a line, one reply each
    jxc::Robot(control, lines).Run();
}

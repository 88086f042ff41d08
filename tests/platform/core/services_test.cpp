// Tests of the services layer: feature switches and built-ins registered by name.
#include <orrery/services/services.hpp>

#include <gtest/gtest.h>

using namespace orrery;

TEST(Services, FeatureSwitchesExistFromTheirFirstSettingUntilUnregistered) {
    const char* feature = "SuppressCommandLineOutput";
    EXPECT_FALSE(services::svIsFeatureRegistered(feature));
    services::svSetFeature(feature, false);
    EXPECT_TRUE(services::svIsFeatureRegistered(feature) && !services::svIsFeatureEnabled(feature));
    services::svSetFeature(feature, true);
    EXPECT_TRUE(services::svIsFeatureEnabled(feature));
    services::svUnregisterFeature(feature);
    EXPECT_FALSE(services::svIsFeatureRegistered(feature) || services::svIsFeatureEnabled(feature));
}
